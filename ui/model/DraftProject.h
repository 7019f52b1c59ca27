// DraftProject: what a dialog holds and has not saved, as a project that the command line can work on.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "core/Session.h"
#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

// A folder of the user's own in the system's place for temporary files, with a project file, an order file, a data file
// and the settings in force. It goes with this object, and with a program that is asked to end; the open project is
// neither read nor changed.
class DraftProject {
  public:
    // Of a form's draft that is valid: ProblemForm::Draft().Record. Throws Failure where nothing can be written.
    explicit DraftProject(const SessionRecord& record);
    ~DraftProject();
    DraftProject(const DraftProject&) = delete;
    DraftProject& operator=(const DraftProject&) = delete;

    // With its separator.
    const std::string& Folder() const noexcept { return folder_; }
    // "Folder/Crane.PO3"
    const std::string& ProjectFile() const noexcept { return projectFile_; }
    // "--settings", the folder, "--lang", the language in force: what a command needs beside the project to print what
    // the windows print.
    std::vector<std::string> Options() const;

  private:
    void Write(const std::string& name, const std::vector<std::string>& lines);

    std::string folder_, projectFile_;
    std::deque<RemovedOnEnd> registered_;
};

}  // namespace lithmark
