// How deep the brackets of a JSON text stand in each other, counted before a parser takes memory for each.
#pragma once

#include <cstddef>
#include <string_view>

namespace lithmark {

// True beyond 16; the program's own files need four.
inline bool IsJsonTooDeep(std::string_view content) {
    constexpr int kDeepest = 16;
    int depth = 0;
    bool inText = false;
    for (std::size_t i = 0; i < content.size() && depth <= kDeepest; ++i) {
        const char c = content[i];
        if (inText && c == '\\')
            ++i;
        else if (c == '"')
            inText = !inText;
        else if (!inText && (c == '{' || c == '['))
            ++depth;
        else if (!inText && (c == '}' || c == ']'))
            --depth;
    }
    return depth > kDeepest;
}

}  // namespace lithmark
