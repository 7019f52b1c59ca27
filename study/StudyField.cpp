#include "study/StudyField.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "files/UnknownField.h"
#include "study/StudyFailure.h"

namespace lithmark {

StudyField FindStudyField(const std::string& word) {
    const auto name = FieldNameOf(Session.ProblemType, word);
    if (!name) throw StudyFailure(StudyFailure::Cause::Request, UnknownFieldText(word));
    const auto value = SessionValue(*name);
    if (!value) FailRequest(902009_text, word);
    return {*name, value->Kind};
}

std::string ValueText(const StudyField& field, double value) {
    const bool fits = std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
    return field.Kind == FieldKind::Number && fits ? JsonNumber(Single(value)) : JsonNumber(value);
}

std::string ValueText(const StudyField& field, std::string_view text) {
    const auto number = field.Numeric() ? ParseNumber(text) : std::nullopt;
    return number && std::isfinite(*number) ? ValueText(field, *number) : std::string(text);
}

}  // namespace lithmark
