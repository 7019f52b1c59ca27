#include "ui/model/FindField.h"

#include "ui/model/FieldForm.h"

namespace lithmark {

const FieldRow* FindField(const Form& form, const Control& box) {
    const auto* fields = dynamic_cast<const FieldForm*>(&form);
    return fields != nullptr ? fields->RowOf(box) : nullptr;
}

}  // namespace lithmark
