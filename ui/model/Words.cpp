#include "ui/model/Words.h"

namespace lithmark {

std::string Words::Text() const {
    if (const auto* numbered = std::get_if<Numbered>(&says_)) return lithmark::Text(numbered->Id, numbered->As);
    if (const auto* axis = std::get_if<Axis>(&says_)) return CoordinateName(*axis);
    if (const auto* plain = std::get_if<std::string>(&says_)) return *plain;
    if (const auto* made = std::get_if<std::function<std::string()>>(&says_)) return (*made)();
    return {};
}

std::string CoordinateName(Axis axis) {
    return Text(90001_text, {{"|1", LanguageTexts().AxisName(axis)}});
}

}  // namespace lithmark
