// The field of a box, for those that know a form only by its controls.
#pragma once

#include "ui/model/FieldRow.h"

namespace lithmark {

// Null for a box without a field, and for a form that has none.
const FieldRow* FindField(const Form& form, const Control& box);

}  // namespace lithmark
