#include "files/ProjectCopy.h"

#include <filesystem>
#include <memory>
#include <system_error>

#include "base/Paths.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "services/ProjectStore.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

void CopyProjectFiles(const std::vector<std::string>& extensions, const std::string& dir, const std::string& name) {
    const auto source = ProjectStore().BeginSave(Session.DataDir + Session.ProjectName);
    const auto target = ProjectStore().BeginSave(dir + name);
    std::vector<std::unique_ptr<WrittenFile>> files;
    for (const std::string& extension : extensions) {
        const std::string from = DataFileName(Session.DataDir, Session.ProjectName, extension);
        const std::string to = DataFileName(dir, name, extension);
        std::error_code error;  // a target that is not there yet
        if (std::filesystem::equivalent(PathOf(from), PathOf(to), error)) continue;
        const std::string content = ReadWholeFile(from, kMostArchivedBytes);
        files.push_back(std::make_unique<WrittenFile>(to));
        files.back()->Append(content);
    }
    WrittenFile::CommitTogether(files, [](std::size_t) {});
}

}  // namespace lithmark
