#include "ui/model/FieldForm.h"

#include <optional>

#include "services/host/Host.h"
#include "ui/model/CommonStep.h"

namespace lithmark {

std::vector<std::string> FieldForm::Inputs() const {
    std::vector<std::string> inputs;
    for (const Control* control : Controls()) {
        switch (control->Kind) {
            case ControlKind::TextBox:
            case ControlKind::DatePicker:
                inputs.push_back(control->Text);
                break;
            case ControlKind::ComboBox:
                inputs.push_back(std::to_string(control->ListIndex) + " " + control->Text);
                break;
            case ControlKind::Option:
            case ControlKind::CheckBox:
                inputs.push_back(control->Value ? "1" : "0");
                break;
            default:
                break;
        }
    }
    return inputs;
}

void FieldForm::SetEnterRows(std::vector<EnterRow> rows) {
    enterRows_ = std::move(rows);
    for (const EnterRow& row : enterRows_) row.From->OnEnter = [this, &steps = row.Steps] { FollowEnter(steps); };
}

void FieldForm::FollowEnter(const std::vector<EnterStep>& steps) {
    for (const EnterStep& step : steps) {
        if (step.IfUsable != nullptr && !(step.IfUsable->Visible && step.IfUsable->Enabled)) continue;
        if (!step.Presses)
            UnderCommonStep([&] { CurrentHost().SetFocus(*this, *step.To); });
        else if (step.To->Enabled && step.To->OnClick)
            step.To->OnClick();
        return;
    }
}

void FieldForm::ShowFields() {
    for (const FieldRow& row : fields_) row.Show();
}

bool FieldForm::CheckFields() {
    for (const FieldRow& row : fields_)
        if (!row.Check(*this)) return false;
    return true;
}

void FieldForm::StoreFields() {
    std::vector<std::optional<double>> values;
    for (const FieldRow& row : fields_) {
        try {
            values.push_back(row.Read());
        } catch (const Failure&) {
            if (row.IsChecked()) throw;
            values.emplace_back();
        }
    }
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (values[i]) fields_[i].Field.Set(*values[i]);
}

}  // namespace lithmark
