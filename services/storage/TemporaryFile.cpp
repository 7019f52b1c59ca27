#include "services/storage/TemporaryFile.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <mutex>
#include <set>
#include <system_error>
#include <utility>

#include "base/Failure.h"
#include "base/Paths.h"
#include "services/platform/Files.h"
#include "services/platform/Process.h"

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
    using namespace platform;
    const std::string name = path.generic_string();
    const int descriptor = OpenFile(name, Open::ReadOwnName);
    if (descriptor < 0) return;
    const Locked lock = TryLock(descriptor);
    if (lock == Locked::Yes || (lock == Locked::NoLocks && IsOld(path))) RemoveFile(name.c_str());
    CloseFile(descriptor);
}

// Whoever writes tidies up first: not every folder that is written to is one that projects are opened in.
void TidyOnce(const std::string& folder) {
    static std::mutex guard;
    static std::set<std::string> tidied;
    {
        const std::lock_guard lock(guard);
        if (!tidied.insert(folder).second) return;
    }
    RemoveLeftovers(folder.empty() ? "." : folder);
}

}  // namespace

TemporaryFile::TemporaryFile(const std::string& folder, const std::string& target) {
    TidyOnce(folder);
    static std::atomic<unsigned> counter = 0;
    do {
        // The name is short whatever the target is called, so that long names can be written too.
        name_ = folder + kHiddenStart + std::to_string(platform::ProcessId()) + "-" + std::to_string(++counter) +
                kTemporaryEnd;
        descriptor_ = platform::OpenFile(name_, platform::Open::New);
    } while (descriptor_ < 0 ? errno == EEXIST : !LockIt());
    if (descriptor_ < 0) FailWithSystemError(errno, FailureKind::WriteError, target);
    registered_.emplace(name_);
}

// False when the file was taken for a leftover before the lock was on it. The lock is on a second descriptor, so that
// the writing can be ended and the file stays in use.
bool TemporaryFile::LockIt() noexcept {
    lock_ = platform::DuplicateFile(descriptor_);
    if (lock_ < 0 || !platform::Lock(lock_)) return true;
    platform::FileState state;
    if (platform::StateOf(lock_, state) && state.Names == 0) {
        platform::CloseFile(std::exchange(lock_, -1));
        platform::CloseFile(std::exchange(descriptor_, -1));
        return false;
    }
    return true;
}

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) platform::RemoveFile(name_.c_str());
    if (descriptor_ >= 0) platform::CloseFile(descriptor_);
    if (lock_ >= 0) platform::CloseFile(lock_);
}

void TemporaryFile::Close(const std::string& target) {
    if (platform::CloseFile(std::exchange(descriptor_, -1)) != 0)
        FailWithSystemError(errno, FailureKind::WriteError, target);
}

void TemporaryFile::TakePlaceOf(const std::string& target, const std::string& told) {
    if (platform::RenameOver(name_, target) != 0) FailWithSystemError(errno, FailureKind::WriteError, told);
    name_.clear();
    registered_.reset();
    if (lock_ >= 0) platform::CloseFile(std::exchange(lock_, -1));
}

void RemoveLeftovers(const std::string& folder) noexcept {
    namespace fs = std::filesystem;
    try {
        std::error_code error;
        for (fs::directory_iterator it(PathOf(folder), error), end; !error && it != end; it.increment(error)) {
            const std::string name = it->path().filename().string();
            if (name.starts_with(kHiddenStart) && (name.ends_with(kTemporaryEnd) || name.ends_with(kLockEnd)))
                RemoveUnused(it->path());
        }
    } catch (const std::exception&) {  // no memory for a name: the next one tidies up
    }
}

}  // namespace lithmark
