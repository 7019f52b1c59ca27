// Files as they are read: whole, from regular files alone, and no larger than who reads them can use.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lithmark {

// Text files of a project and settings. The longest table has 32767 rows of a few numbers: some megabytes.
inline constexpr std::uint64_t kMostTextBytes = std::uint64_t{32} << 20;

// The bytes of a regular file. FileMissing; NotAFile for anything else that stands there (a folder, a pipe, a device),
// which is not opened for reading; PermissionDenied; TooLarge, before anything is read, beyond `mostBytes`; ReadError.
std::string ReadWholeFile(const std::string& path, std::uint64_t mostBytes = kMostTextBytes);

// True for a regular file that begins with these bytes. False for one that cannot be read.
bool BeginsWith(const std::string& path, std::string_view start);

// By what a file is known again: another file under the same name, or one that was written since, has another mark.
struct FileMark {
    std::uint64_t Device = 0, Inode = 0, Size = 0;
    std::int64_t Seconds = 0, Nanoseconds = 0;  // of the last change of the content

    bool operator==(const FileMark&) const = default;
};
// The mark of the regular file that a path stands for; nothing where there is none.
std::optional<FileMark> MarkOf(const std::string& path) noexcept;

}  // namespace lithmark
