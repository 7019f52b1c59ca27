#include "cli/RunFiles.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "base/Failure.h"
#include "core/Session.h"
#include "kernels/raft/RaftRun.h"
#include "services/platform/Files.h"
#include "services/storage/FileNames.h"

namespace lithmark {

RunFiles::RunFiles(Where where) {
    SetRaftExport(where != Where::Nowhere);
    if (where != Where::Aside) return;
    folder_ = platform::MakeTemporaryFolder();
    if (folder_.empty()) FailWithSystemError(errno, FailureKind::WriteError, platform::TemporaryFolder());
    registered_.emplace_back(folder_);
    for (const std::string_view extension : ProjectExtensions())
        registered_.emplace_back(folder_ + "/" + Session.WorkName + "." + std::string(extension));
    dataDir_ = Session.DataDir;
    workDir_ = Session.WorkDir;
    Session.DataDir = Session.WorkDir = WithSeparator(folder_);
}

RunFiles::~RunFiles() {
    SetRaftExport(true);
    if (folder_.empty()) return;
    Session.DataDir = dataDir_;
    Session.WorkDir = workDir_;
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace lithmark
