// FileDialogs: the open and save dialogs for project files, and the parts of a project's path.
#pragma once

#include <string>

namespace lithmark {

class FileDialogsService {
  public:
    // Asks for a file to open. `pattern` is such as "*.PO3". Gives the full path, its folder with a trailing separator
    // and its bare name. False when cancelled, and then nothing is changed. Without a title the dialog has one that
    // tells a project from the data of a problem.
    bool OpenFileDialog(std::string& file, const std::string& startDir, std::string& outDir, std::string& outName,
                        const std::string& pattern, const std::string& title = {});
    // Asks for a file to save, proposing `outName`; the program's own folder for projects is made for it. `extension`
    // is such as "PO3" and is put behind a name without it.
    bool SaveFileDialog(std::string& file, const std::string& startDir, std::string& outDir, std::string& outName,
                        const std::string& extension, const std::string& title = {});

    // The folder of a path, absolute and with a trailing separator, and its name without a project extension.
    void SplitProjectPath(const std::string& file, std::string& dir, std::string& name) const;
    // Tests and splits a path from the command line; kind 6 is a project file, whose extension may be left out, and for
    // which `extension` may be empty. False when the path has another extension or names no file; then nothing is
    // changed.
    bool ResolveProjectPath(const std::string& path, std::string& file, std::string& dir, std::string& name,
                            const std::string& extension, int kind) const;
};

FileDialogsService& FileDialogs();

}  // namespace lithmark
