#include "services/storage/TemporaryFolder.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "base/Failure.h"
#include "base/Paths.h"
#include "services/platform/Files.h"
#include "services/storage/FileNames.h"

namespace lithmark {

TemporaryFolder::TemporaryFolder() {
    const std::string folder = platform::MakeTemporaryFolder();
    if (folder.empty()) FailWithSystemError(errno, FailureKind::WriteError, platform::TemporaryFolder());
    registered_.emplace_back(folder);
    path_ = WithSeparator(folder);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(PathOf(path_), ignored);
}

std::string TemporaryFolder::Announce(const std::string& name) {
    std::string path = path_ + name;
    registered_.emplace_back(path);
    return path;
}

}  // namespace lithmark
