// Texts as the system's own functions take them: UTF-16, paths with backslashes.
#pragma once

#include <string>
#include <string_view>

namespace lithmark::platform {

std::wstring Wide(std::string_view utf8);
std::string Narrow(std::wstring_view wide);
// A path for the system; one that is too long for its usual limit in the form that has none.
std::wstring WidePath(const std::string& path);
// A path from the system, with "/".
std::string NarrowPath(std::wstring_view path);

// The `errno` number that stands for the system's last error.
int NumberOfLastError() noexcept;

}  // namespace lithmark::platform
