// Words: what a caption says, told once and worked out in the language in force each time it is shown.
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "base/TextId.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

class Words {
  public:
    Words() = default;
    // A text by its number.
    Words(TextId id, Style style = {}) : says_(Numbered{id, style}) {}
    // The name of a coordinate: "x-coordinate".
    Words(Axis axis) : says_(axis) {}
    // The same in every language: a symbol, a unit.
    Words(const char* plain) : says_(std::string(plain)) {}
    Words(std::string plain) : says_(std::move(plain)) {}
    // Worked out by a function: several texts, or one that follows a choice.
    template <typename F>
    requires std::is_invocable_r_v<std::string, const F&> Words(F made)
        : says_(std::function<std::string()>(std::move(made))) {}

    bool Empty() const noexcept { return std::holds_alternative<std::monostate>(says_); }
    std::string Text() const;

  private:
    struct Numbered {
        TextId Id;
        Style As;
    };
    std::variant<std::monostate, Numbered, Axis, std::string, std::function<std::string()>> says_;
};

// "x-coordinate" in the language in force.
std::string CoordinateName(Axis axis);

}  // namespace lithmark
