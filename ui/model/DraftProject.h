// DraftProject: what a dialog holds and has not saved, as a project that the command line can work on.
#pragma once

#include <string>
#include <vector>

#include "core/Session.h"
#include "services/storage/TemporaryFolder.h"

namespace lithmark {

// A temporary folder with a project file, an order file, a data file and the settings in force. The open project is
// neither read nor changed.
class DraftProject {
  public:
    // Of a form's draft that is valid: ProblemForm::Draft().Record. Throws Failure where nothing can be written.
    explicit DraftProject(const SessionRecord& record);

    // With its separator.
    const std::string& Folder() const noexcept { return folder_.Path(); }
    // "Folder/Crane.PO3"
    const std::string& ProjectFile() const noexcept { return projectFile_; }
    // "--settings", the folder, "--lang", the language in force: what a command needs beside the project to print what
    // the windows print.
    std::vector<std::string> Options() const;

  private:
    void Write(const std::string& name, const std::vector<std::string>& lines);

    TemporaryFolder folder_;
    std::string projectFile_;
};

}  // namespace lithmark
