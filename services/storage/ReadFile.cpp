#include "services/storage/ReadFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>

#include "base/Failure.h"

namespace lithmark {

namespace {

constexpr std::size_t kPiece = 1 << 16;

// An open descriptor of a regular file, which closes itself.
class RegularFile {
  public:
    explicit RegularFile(const std::string& path) {
        // Without waiting for a writer, should a pipe stand there.
        descriptor_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        if (descriptor_ < 0)
            error_ = errno == ENXIO ? EISDIR : errno;  // a socket
        else if (::fstat(descriptor_, &status_) != 0)
            error_ = errno;
        else if (!S_ISREG(status_.st_mode))
            error_ = EISDIR;
    }
    ~RegularFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;

    int Error() const noexcept { return error_; }
    std::uint64_t Size() const noexcept { return static_cast<std::uint64_t>(status_.st_size); }

    // Reads the next bytes; fewer than asked for at the end of the file. -1 and Error on a failure.
    ssize_t Read(char* to, std::size_t count) {
        std::size_t length = 0;
        while (length < count) {
            const ssize_t read = ::read(descriptor_, to + length, count - length);
            if (read < 0 && errno == EINTR) continue;
            if (read < 0) {
                error_ = errno;
                return -1;
            }
            if (read == 0) break;
            length += static_cast<std::size_t>(read);
        }
        return static_cast<ssize_t>(length);
    }

  private:
    int descriptor_ = -1, error_ = 0;
    struct stat status_ {};
};

[[noreturn]] void FailTooLarge(const std::string& path, std::uint64_t mostBytes) {
    FailInFile(FailureKind::TooLarge, path, std::to_string(mostBytes >> 20));
}

}  // namespace

std::string ReadWholeFile(const std::string& path, std::uint64_t mostBytes) {
    RegularFile file(path);
    if (file.Error() != 0) FailWithSystemError(file.Error(), FailureKind::ReadError, path);
    if (file.Size() > mostBytes) FailTooLarge(path, mostBytes);
    try {
        std::string content(static_cast<std::size_t>(file.Size()) + 1, '\0');
        std::size_t length = 0;
        for (;;) {
            const ssize_t count = file.Read(content.data() + length, content.size() - length);
            if (count < 0) FailWithSystemError(file.Error(), FailureKind::ReadError, path);
            length += static_cast<std::size_t>(count);
            if (length < content.size()) break;
            // The file grew while it was read.
            if (length > mostBytes) FailTooLarge(path, mostBytes);
            content.resize(length + kPiece);
        }
        content.resize(length);
        return content;
    } catch (const std::bad_alloc&) {
        FailInFile(FailureKind::OutOfMemory, path);
    }
}

bool BeginsWith(const std::string& path, std::string_view start) {
    RegularFile file(path);
    if (file.Error() != 0) return false;
    std::string bytes(start.size(), '\0');
    return file.Read(bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) && bytes == start;
}

std::optional<FileMark> MarkOf(const std::string& path) noexcept {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileMark{static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
                    static_cast<std::uint64_t>(status.st_size), status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

}  // namespace lithmark
