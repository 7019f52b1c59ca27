// FileTools: windows with a list of files and with a text.
#pragma once

#include <string>

namespace lithmark {

class FileToolsService {
  public:
    // The files of a folder with an extension, in any letter case, in a window of their own.
    void ShowFileList(const std::string& programDir, const std::string& dataDir, const std::string& extension);
    void ShowTextEditor(const std::string& programDir, const std::string& text);
};

FileToolsService& FileTools();

}  // namespace lithmark
