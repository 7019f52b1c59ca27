// File names as the program forms them, and as the file system knows them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace lithmark {

// What stands between folders in the program's own paths, on every system.
inline constexpr char kSeparator = '/';

// The extensions of all files that a project can consist of, upper case: the project and order file, the problems' data
// files, and the files of a raft export.
std::span<const std::string_view> ProjectExtensions();

// The extension of a path: what stands behind the last point of its last component, without the point; empty without
// one.
std::string_view ExtensionOf(std::string_view path);

// The name that a path is really opened under. A backslash becomes a slash. A project extension is
// folded to upper case; when no such file exists but one whose extension differs in letter case alone, it is that file.
std::string MappedFileName(std::string_view name);

// True when something stands under this name, or when that cannot be found out.
bool PathExists(const std::string& path);

// A folder with a separator at its end.
std::string WithSeparator(std::string dir);

}  // namespace lithmark
