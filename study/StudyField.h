// A field that a study sets, and a value for it as text.
#pragma once

#include <string>
#include <string_view>

#include "core/SessionFields.h"

namespace lithmark {

struct StudyField {
    std::string Name;  // the field's own, an element as "hLayer(2)"
    FieldKind Kind = FieldKind::Number;

    bool Numeric() const noexcept { return Kind == FieldKind::Number || Kind == FieldKind::Whole; }
};

// The field of a name or symbol in the project that Session holds. StudyFailure that names the nearest known one.
StudyField FindStudyField(const std::string& word);

// A value as columns show it and as the row sets it: a number with as many digits as give the field's 32 bits back, any
// other text as it stands.
std::string ValueText(const StudyField& field, double value);
std::string ValueText(const StudyField& field, std::string_view text);

}  // namespace lithmark
