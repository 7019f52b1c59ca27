#include "ui/model/FieldForm.h"

#include <algorithm>

#include "files/CommonStep.h"
#include "services/SharedServices.h"

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

const FieldRow* FieldForm::RowOf(const Control& box) const {
    const auto row = std::find_if(fields_.begin(), fields_.end(), [&](const FieldRow& f) { return &f.Box == &box; });
    return row == fields_.end() ? nullptr : &*row;
}

void FieldForm::SetFields(std::vector<FieldRow> fields) {
    fields_ = std::move(fields);
    for (const FieldRow& row : fields_) {
        if (!row.Enter.empty()) row.Box.OnEnter = [this, &steps = row.Enter] { FollowEnter(steps); };
        if (row.Symbol.On != nullptr) row.Symbol.On->Symbol = true;
    }
}

void FieldForm::SetChoices(std::vector<ChoiceRow> choices) {
    choices_ = std::move(choices);
    for (const ChoiceRow& row : choices_)
        for (Control* control : row.Of)
            (control->Kind == ControlKind::ComboBox ? control->OnChange : control->OnClick) = row.OnClick;
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

void FieldForm::ShowCaptions() {
    SetCaptions(captions_);
    for (const ChoiceRow& row : choices_) row.ShowCaptions();
    for (const FieldRow& row : fields_) {
        if (row.Label.On != nullptr) row.Label.On->Caption = row.Label.Says.Text();
        if (row.Symbol.On != nullptr) row.Symbol.On->Caption = row.Symbol.Says.Text();
        if (row.In.On != nullptr) row.In.On->Caption = row.In.Says.Text();
    }
}

void FieldForm::ShowFields() {
    for (FieldRow& row : fields_)
        if (row.Field.Exists()) row.Show(Session);
}

void FieldForm::ShowChoiceRows() {
    for (const ChoiceRow& row : choices_) {
        row.ShowCaptions();
        if (row.Field.Exists()) row.SetPosition(row.Field.PositionIn(Session));
    }
    for (const ChoiceRow& row : choices_)
        if (row.OnClick) row.OnClick();
}

double FieldForm::NumberIn(const Control& box) const {
    const FieldRow* row = RowOf(box);
    return row != nullptr ? row->ReadShown() : SharedServices().GetNumber(box);
}

std::vector<BoxFault> FieldForm::Faults() const {
    std::vector<BoxFault> faults;
    for (const FieldRow& row : fields_)
        if (row.Field.Exists())
            if (auto reason = row.Fault()) faults.push_back({&row.Box, *std::move(reason)});
    return faults;
}

void FieldForm::Refuse(const std::vector<BoxFault>& faults) {
    for (const BoxFault& fault : faults) refused_.insert(fault.Box);
    SharedServices().RefuseBox(*this, *faults.front().Box, faults.front().Reason);
}

std::string FieldForm::MarkOf(const Control& box) const {
    const FieldRow* row = RowOf(box);
    return row != nullptr && row->Field.Exists() ? row->Fault().value_or("") : "";
}

void FieldForm::StoreFields(SessionRecord& record) const {
    for (const FieldRow& row : fields_) {
        if (!row.Field.Exists()) continue;
        try {
            row.Field.Set(record, row.Read());
        } catch (const Failure&) {
            if (row.IsChecked()) throw;
        }
    }
}

void FieldForm::StoreChoiceRows(SessionRecord& record) const {
    for (const ChoiceRow& row : choices_) row.Field.Store(record, row.Position());
}

void FieldForm::MarkStored() {
    for (FieldRow& row : fields_) {
        if (!row.Field.Exists()) continue;
        try {
            static_cast<void>(row.Read());
        } catch (const Failure&) {
            continue;  // its text stands for nothing
        }
        row.Last = FieldRow::ShownValue{row.Box.Text, row.Field.Get(Session)};
    }
}

void FieldForm::ShowLines(const ControlList& boxes, bool visible) {
    for (const Control* box : boxes)
        if (const FieldRow* row = RowOf(*box))
            for (Control* control : row->Line()) control->Visible = visible;
}

void FieldForm::SwitchLines(const ControlList& boxes, bool on) {
    for (Control* box : boxes) {
        ShowLines(*box, on);
        box->Visible = true;
        box->Enabled = on;
    }
}

}  // namespace lithmark
