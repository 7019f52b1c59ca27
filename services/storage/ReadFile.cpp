#include "services/storage/ReadFile.h"

#include <cerrno>
#include <new>

#include "base/Failure.h"
#include "services/platform/Files.h"

namespace lithmark {

namespace {

constexpr std::size_t kReadAtOnce = 1 << 16;

// An open descriptor of a regular file, which closes itself.
class RegularFile {
  public:
    explicit RegularFile(const std::string& path) {
        descriptor_ = platform::OpenFile(path, platform::Open::Read);
        if (descriptor_ < 0)
            error_ = errno == ENXIO ? EISDIR : errno;  // a socket
        else if (!platform::StateOf(descriptor_, state_))
            error_ = errno;
        else if (state_.What != platform::FileState::Kind::Regular)
            error_ = EISDIR;
    }
    ~RegularFile() {
        if (descriptor_ >= 0) platform::CloseFile(descriptor_);
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;

    int Error() const noexcept { return error_; }
    std::uint64_t Size() const noexcept { return state_.Size; }

    // Reads the next bytes; fewer than asked for at the end of the file. -1 and Error on a failure.
    std::int64_t Read(char* to, std::size_t count) {
        std::size_t length = 0;
        while (length < count) {
            const std::int64_t read = platform::ReadFrom(descriptor_, to + length, count - length);
            if (read < 0) {
                error_ = errno;
                return -1;
            }
            if (read == 0) break;
            length += static_cast<std::size_t>(read);
        }
        return static_cast<std::int64_t>(length);
    }

  private:
    int descriptor_ = -1, error_ = 0;
    platform::FileState state_;
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
            const std::int64_t count = file.Read(content.data() + length, content.size() - length);
            if (count < 0) FailWithSystemError(file.Error(), FailureKind::ReadError, path);
            length += static_cast<std::size_t>(count);
            if (length < content.size()) break;
            // The file grew while it was read.
            if (length > mostBytes) FailTooLarge(path, mostBytes);
            content.resize(length + kReadAtOnce);
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
    return file.Read(bytes.data(), bytes.size()) == static_cast<std::int64_t>(bytes.size()) && bytes == start;
}

std::optional<FileMark> MarkOf(const std::string& path) noexcept {
    platform::FileState state;
    if (!platform::StateOf(path, state) || state.What != platform::FileState::Kind::Regular) return std::nullopt;
    return FileMark{state.Device, state.Number, state.Size, state.Seconds, state.Nanoseconds};
}

}  // namespace lithmark
