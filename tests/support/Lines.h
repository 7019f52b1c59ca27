// Lines of a report, so that tests can name them one by one.
#pragma once

#include <string>
#include <vector>

#include "base/Utf8.h"

namespace lithmark::tests {

// The lines of a text with CR LF line ends. A text that does not end in one gives a last line "(no line end)".
inline std::vector<std::string> ReportLinesOf(const std::string& text) {
    std::vector<std::string> lines = Split(ReplaceAll(text, "\r\n", "\n"), '\n');
    if (lines.back().empty())
        lines.pop_back();
    else
        lines.push_back("(no line end)");
    return lines;
}

}  // namespace lithmark::tests
