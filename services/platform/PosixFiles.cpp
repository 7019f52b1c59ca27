#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "services/platform/Files.h"
#include "services/platform/Process.h"

namespace lithmark::platform {

namespace {

int FlagsOf(Open how) noexcept {
    constexpr int kRead = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    switch (how) {
        case Open::Read:
            return kRead;
        case Open::ReadOwnName:
            return kRead | O_NOFOLLOW;
        case Open::Write:
            return O_WRONLY | O_CLOEXEC;
        case Open::New:
            return O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        case Open::Card:
            return O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    }
    return kRead;
}

// A call is repeated that a signal interrupted.
template <class Call>
std::int64_t Repeated(const Call& call) noexcept {
    for (;;) {
        const ssize_t count = call();
        if (count >= 0 || errno != EINTR) return count;
    }
}

bool Fill(FileState& state, const struct stat& status) noexcept {
    state.What = S_ISREG(status.st_mode)   ? FileState::Kind::Regular
                 : S_ISDIR(status.st_mode) ? FileState::Kind::Folder
                                           : FileState::Kind::Other;
    state.Permissions = status.st_mode & 07777;
    state.Device = status.st_dev;
    state.Number = status.st_ino;
    state.Size = static_cast<std::uint64_t>(status.st_size);
    state.Names = status.st_nlink;
    state.Seconds = status.st_mtim.tv_sec;
    state.Nanoseconds = status.st_mtim.tv_nsec;
    return true;
}

}  // namespace

int OpenFile(const std::string& path, Open how) noexcept {
    return ::open(path.c_str(), FlagsOf(how), 0666);
}

int CloseFile(int descriptor) noexcept {
    return ::close(descriptor);
}

int DuplicateFile(int descriptor) noexcept {
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
}

std::FILE* OpenStream(const std::string& path) noexcept {
    return std::fopen(path.c_str(), "rbe");
}

std::int64_t ReadFrom(int descriptor, char* to, std::size_t count) noexcept {
    return Repeated([&] { return ::read(descriptor, to, count); });
}

std::int64_t WriteTo(int descriptor, const char* from, std::size_t count) noexcept {
    return Repeated([&] { return ::write(descriptor, from, count); });
}

std::int64_t ReadFromAt(int descriptor, char* to, std::size_t count, std::int64_t offset) noexcept {
    return Repeated([&] { return ::pread(descriptor, to, count, offset); });
}

std::int64_t WriteToAt(int descriptor, const char* from, std::size_t count, std::int64_t offset) noexcept {
    return Repeated([&] { return ::pwrite(descriptor, from, count, offset); });
}

int CutFile(int descriptor) noexcept {
    return ::ftruncate(descriptor, 0);
}

int SyncFile(int descriptor) noexcept {
    return ::fsync(descriptor);
}

void SyncFolder(const std::string& folder) noexcept {
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

int RenameOver(const std::string& from, const std::string& to) noexcept {
    return std::rename(from.c_str(), to.c_str());
}

int RemoveFile(const char* path) noexcept {
    return ::unlink(path);
}

int RemoveEmptyFolder(const char* path) noexcept {
    return ::rmdir(path);
}

bool StateOf(const std::string& path, FileState& state) noexcept {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && Fill(state, status);
}

bool StateOf(int descriptor, FileState& state) noexcept {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && Fill(state, status);
}

bool MayWrite(const std::string& path) noexcept {
    return ::access(path.c_str(), W_OK) == 0;
}

void SetPermissions(int descriptor, unsigned permissions) noexcept {
    ::fchmod(descriptor, permissions);
}

Locked TryLock(int descriptor) noexcept {
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return Locked::Yes;
    return errno == EWOULDBLOCK ? Locked::HeldByAnother : Locked::NoLocks;
}

bool Lock(int descriptor) noexcept {
    return ::flock(descriptor, LOCK_EX) == 0;
}

std::string MakeTemporaryFolder() {
    std::string path = TemporaryFolder() + "/lithmark-XXXXXX";
    return ::mkdtemp(path.data()) != nullptr ? path : std::string();
}

std::string MakeTemporaryFile() {
    std::string path = TemporaryFolder() + "/lithmark-XXXXXX";
    const int descriptor = ::mkstemp(path.data());
    if (descriptor < 0) return {};
    ::close(descriptor);
    return path;
}

std::string TemporaryFolder() {
    std::error_code error;
    std::string folder = std::filesystem::temp_directory_path(error).string();
    if (error) folder = Variable("TMPDIR").value_or("/tmp");
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    return folder;
}

}  // namespace lithmark::platform
