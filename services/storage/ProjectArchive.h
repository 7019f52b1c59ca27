// The packed form of a project: a ZIP archive of its files.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace lithmark {

// The bytes of a project's files by their extensions, upper case.
using ProjectFiles = std::map<std::string, std::string>;

// True when a file begins as an archive does. False for a file that cannot be read.
bool IsArchiveFile(const std::string& path);

// The archive of the files; its entries are called `name` with the extensions. WriteError when it cannot be built.
std::string BuildArchive(const std::string& name, const ProjectFiles& files);

// What a packed project may hold, and how large its archive may be on the disk: no compression doubles it.
inline constexpr std::uint64_t kMostArchivedBytes = std::uint64_t{128} << 20, kMostArchiveFile = 2 * kMostArchivedBytes;

// The files of an archive. What the entries are called ahead of their extensions does not matter, so a packed project
// can be renamed like any file. DamagedArchive when a checksum or a length is wrong, when an entry is no project file,
// stands twice or tries to leave the folder, or when the project file itself is missing; ArchiveTooLarge when more than
// `mostBytes` come out. Memory is taken as bytes come out, whatever the archive says of their number.
ProjectFiles ReadArchive(std::string_view archive, std::uint64_t mostBytes = kMostArchivedBytes);

}  // namespace lithmark
