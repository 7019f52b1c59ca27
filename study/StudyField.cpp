#include "study/StudyField.h"

#include <cmath>
#include <limits>

#include "base/NumberText.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "study/StudyFailure.h"

namespace lithmark {

StudyField FindStudyField(const std::string& word) {
    const int problem = Session.ProblemType;
    const auto name = FieldNameOf(problem, word);
    if (!name) {
        const std::string nearest(NearestWord(word, FieldWords(problem)));
        throw StudyFailure(StudyFailure::Cause::Request, Text(908011_text, {{"|1", word}, {"|2", nearest}}));
    }
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
