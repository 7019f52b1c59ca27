// TextId: the number of a language text, written 140096_text in code.
//
// A type of its own keeps text numbers and values apart, and lets a test find every number that the code uses.
#pragma once

#include <compare>

namespace lithmark {

struct TextId {
    int Number = 0;
    auto operator<=>(const TextId&) const = default;
};

constexpr TextId operator""_text(unsigned long long number) {
    return TextId{static_cast<int>(number)};
}

}  // namespace lithmark
