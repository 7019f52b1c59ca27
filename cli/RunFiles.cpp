#include "cli/RunFiles.h"

#include <string_view>

#include "core/Session.h"
#include "kernels/raft/RaftRun.h"
#include "services/storage/FileNames.h"

namespace lithmark {

RunFiles::RunFiles(Where where) {
    SetRaftExport(where != Where::Nowhere);
    if (where != Where::Aside) return;
    folder_.emplace();
    for (const std::string_view extension : ProjectExtensions())
        folder_->Announce(Session.WorkName + "." + std::string(extension));
    dataDir_ = Session.DataDir;
    workDir_ = Session.WorkDir;
    Session.DataDir = Session.WorkDir = folder_->Path();
}

RunFiles::~RunFiles() {
    SetRaftExport(true);
    if (!folder_) return;
    Session.DataDir = dataDir_;
    Session.WorkDir = workDir_;
}

}  // namespace lithmark
