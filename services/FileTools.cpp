#include "services/FileTools.h"

#include "services/host/Host.h"

namespace lithmark {

void FileToolsService::ShowFileList(const std::string& /*programDir*/, const std::string& dataDir,
                                    const std::string& extension) {
    CurrentHost().ShowFileList(dataDir, extension);
}

void FileToolsService::ShowTextEditor(const std::string& /*programDir*/, const std::string& text) {
    CurrentHost().ShowTextEditor(text);
}

FileToolsService& FileTools() {
    static FileToolsService instance;
    return instance;
}

}  // namespace lithmark
