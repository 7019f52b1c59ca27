#include "study/StudyCase.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "study/StudyFailure.h"
#include "study/StudyField.h"

namespace lithmark {

namespace {

[[noreturn]] void FailCase(const std::string& text) {
    FailRequest(908021_text, text);
}

// The elements of a whole array, or the one field itself.
std::vector<std::string> ElementsOf(const std::string& word) {
    const auto name = FieldNameOf(Session.ProblemType, word);
    if (!name || SessionValue(*name)) return {FindStudyField(word).Name};
    const auto element = [&](int i) { return *name + "(" + std::to_string(i) + ")"; };
    std::vector<std::string> elements;
    for (int i = 1; SessionValue(element(i)); ++i) elements.push_back(element(i));
    if (elements.empty()) FailRequest(902009_text, word);
    return elements;
}

FieldChange Scaled(const std::string& text, const std::string& name, double factor) {
    const StudyField field = FindStudyField(name);
    if (!field.Numeric()) FailCase(text);
    const double value = SessionValue(field.Name)->Number * factor;
    const bool whole = field.Kind != FieldKind::Whole || value == std::floor(value);
    if (!whole || !(std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max()))) FailCase(text);
    return {field.Name, ValueText(field, value)};
}

}  // namespace

StudyCase StudyCase::Parse(const std::string& text) {
    const auto colon = text.find(':');
    if (colon == std::string::npos || colon == 0) FailCase(text);
    StudyCase result{text.substr(0, colon), {}};
    for (const std::string& item : Split(text.substr(colon + 1), ',')) {
        const auto equals = item.find('=');
        if (equals == std::string::npos || equals + 1 >= item.size()) FailCase(text);
        const char sign = item[equals + 1];
        const auto number = ParseNumber(item.substr(equals + 2));
        if ((sign != '*' && sign != '/') || !number || (sign == '/' && *number == 0)) FailCase(text);
        for (const std::string& name : ElementsOf(Trim(item.substr(0, equals))))
            result.Changes.push_back(Scaled(text, name, sign == '*' ? *number : 1 / *number));
    }
    return result;
}

}  // namespace lithmark
