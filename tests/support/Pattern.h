// Regular expressions in tests, the same on every system.
#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

namespace lithmark::tests {

// A text that has the pattern in it.
MATCHER_P(HasPattern, pattern, (negation ? "has not in it " : "has in it ") + std::string(pattern)) {
    return std::regex_search(std::string(arg), std::regex(pattern));
}

}  // namespace lithmark::tests
