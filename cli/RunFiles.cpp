#include "cli/RunFiles.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/Failure.h"
#include "core/Session.h"
#include "kernels/raft/RaftRun.h"
#include "services/storage/FileNames.h"

namespace lithmark {

RunFiles::RunFiles(Where where) {
    SetRaftExport(where != Where::Nowhere);
    if (where != Where::Aside) return;
    folder_ = (std::filesystem::temp_directory_path() / "lithmark-XXXXXX").string();
    if (!mkdtemp(folder_.data())) FailWithSystemError(errno, FailureKind::WriteError, folder_);
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
