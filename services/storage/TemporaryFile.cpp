#include "services/storage/TemporaryFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/Failure.h"

namespace lithmark {

namespace {

constexpr char kTemporaryEnd[] = ".tmp", kLockEnd[] = ".lock";

// On a file system without locks, what is a day old is no longer in use.
bool IsOld(const std::filesystem::path& path) noexcept {
    std::error_code error;
    const auto written = std::filesystem::last_write_time(path, error);
    return !error && std::filesystem::file_time_type::clock::now() - written > std::chrono::hours(24);
}

// Removes a file that nobody uses. The lock is held until the name is gone, so that a file that is just being made is
// either left alone or seen by its maker to be gone.
void RemoveUnused(const std::filesystem::path& path) noexcept {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) return;
    const bool unused = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && IsOld(path));
    if (unused) ::unlink(path.c_str());
    ::close(descriptor);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folder, const std::string& target) {
    static std::atomic<unsigned> counter = 0;
    do {
        // The name is short whatever the target is called, so that long names can be written too.
        name_ = folder + kHiddenStart + std::to_string(::getpid()) + "-" + std::to_string(++counter) + kTemporaryEnd;
        descriptor_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (descriptor_ < 0 ? errno == EEXIST : !LockIt());
    if (descriptor_ < 0) FailWithSystemError(errno, FailureKind::WriteError, target);
    registered_.emplace(name_);
}

// False when the file was taken for a leftover before the lock was on it. The lock is on a second descriptor, so that
// the writing can be ended and the file stays in use.
bool TemporaryFile::LockIt() noexcept {
    lock_ = ::fcntl(descriptor_, F_DUPFD_CLOEXEC, 0);
    if (lock_ < 0 || ::flock(lock_, LOCK_EX) != 0) return true;
    struct stat status {};
    if (::fstat(lock_, &status) == 0 && status.st_nlink == 0) {
        ::close(std::exchange(lock_, -1));
        ::close(std::exchange(descriptor_, -1));
        return false;
    }
    return true;
}

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) ::unlink(name_.c_str());
    if (descriptor_ >= 0) ::close(descriptor_);
    if (lock_ >= 0) ::close(lock_);
}

void TemporaryFile::Close(const std::string& target) {
    if (::close(std::exchange(descriptor_, -1)) != 0) FailWithSystemError(errno, FailureKind::WriteError, target);
}

void TemporaryFile::TakePlaceOf(const std::string& target, const std::string& told) {
    if (std::rename(name_.c_str(), target.c_str()) != 0) FailWithSystemError(errno, FailureKind::WriteError, told);
    name_.clear();
    registered_.reset();
    if (lock_ >= 0) ::close(std::exchange(lock_, -1));
}

void RemoveLeftovers(const std::string& folder) noexcept {
    namespace fs = std::filesystem;
    try {
        std::error_code error;
        for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
            const std::string name = it->path().filename().string();
            if (name.starts_with(kHiddenStart) && (name.ends_with(kTemporaryEnd) || name.ends_with(kLockEnd)))
                RemoveUnused(it->path());
        }
    } catch (const std::exception&) {  // no memory for a name: the next one tidies up
    }
}

}  // namespace lithmark
