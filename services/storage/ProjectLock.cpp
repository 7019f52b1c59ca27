#include "services/storage/ProjectLock.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "services/storage/TemporaryFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kTries = 5;
constexpr std::chrono::milliseconds kPause(20);

std::string LockFileOf(const std::string& project) {
    const std::filesystem::path path(project);
    return (path.parent_path() / (std::string(kHiddenStart) + path.filename().string() + ".lock")).string();
}

std::string UserName() {
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? user->pw_name : std::to_string(::getuid());
}

std::string MachineName() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : std::string();
}

// Who this process is, a line each: user, machine, process.
std::string Card() {
    return UserName() + "\n" + MachineName() + "\n" + std::to_string(::getpid()) + "\n";
}

// Who holds a lock, by the card in its file; the card may still be missing.
std::string HolderIn(int descriptor) {
    std::array<char, 512> bytes;
    const ssize_t count = ::pread(descriptor, bytes.data(), bytes.size(), 0);
    std::vector<std::string> lines =
        Split(std::string_view(bytes.data(), static_cast<std::size_t>(count < 0 ? 0 : count)), '\n');
    lines.resize(3);
    return Text(909010_text, {{"|1", Excerpt(lines[0])}, {"|2", Excerpt(lines[1])}, {"|3", Excerpt(lines[2])}});
}

// True when the descriptor's file is the one that stands under the name; a holder removes the file as it leaves.
bool StandsUnder(int descriptor, const std::string& file) {
    struct stat open {
    }, named{};
    return ::fstat(descriptor, &open) == 0 && ::stat(file.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

}  // namespace

// Who tidies up the folder holds the lock for a moment, so a lock that is held is tried again before that is told.
ProjectLock::ProjectLock(const std::string& project) : project_(project) {
    const std::string file = LockFileOf(project);
    for (int tries = 1; !TryOnce(file, tries < kTries); ++tries) std::this_thread::sleep_for(kPause);
}

// False when the lock is to be tried again: it is held, or the file went away under it.
bool ProjectLock::TryOnce(const std::string& file, bool again) {
    // No link is followed: the name is the program's own, and what it leads to need not be.
    constexpr int kFlags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | kFlags, 0666);
    // The file of another user, who may well hold the lock.
    if (descriptor < 0 && errno == EACCES) descriptor = ::open(file.c_str(), O_RDONLY | kFlags);
    if (descriptor < 0) return true;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK;
        const std::string holder = held ? HolderIn(descriptor) : std::string();
        ::close(descriptor);
        if (held && !again) FailInFile(FailureKind::ProjectInUse, project_, holder);
        return !held;
    }
    if (!StandsUnder(descriptor, file)) {
        ::close(descriptor);
        return false;
    }
    descriptor_ = descriptor;
    file_ = file;
    process_ = ::getpid();
    registered_ = std::make_unique<RemovedOnEnd>(file_);
    const std::string card = Card();
    // A card that cannot be written leaves the holder unnamed; the lock holds all the same.
    if (::ftruncate(descriptor_, 0) == 0) static_cast<void>(::pwrite(descriptor_, card.data(), card.size(), 0) < 0);
    return true;
}

ProjectLock::~ProjectLock() {
    if (descriptor_ < 0) return;
    // A process that was forked off has the lock's descriptor too; the file is its maker's.
    if (process_ == ::getpid() && StandsUnder(descriptor_, file_)) ::unlink(file_.c_str());
    registered_.reset();
    ::close(descriptor_);
}

}  // namespace lithmark
