// Paths for the standard library, which takes plain text in an encoding of the system's own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lithmark {

// The path that a text in UTF-8 names, as the whole program has them.
inline std::filesystem::path PathOf(std::string_view utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

}  // namespace lithmark
