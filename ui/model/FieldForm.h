// FieldForm: a form whose numeric fields and whose way of the Enter key are tables.
#pragma once

#include <string>
#include <vector>

#include "ui/model/Controls.h"
#include "ui/model/FieldRow.h"

namespace lithmark {

// Where Enter leads: the first step of a row whose condition holds, the focus moved or the button pressed.
struct EnterStep {
    Control* To;
    bool Presses = false;
    const Control* IfUsable = nullptr;  // only while this control is shown and enabled; null: always
};
inline EnterStep GoTo(Control& to) {
    return {&to};
}
inline EnterStep GoToIfUsable(Control& to) {
    return {&to, false, &to};
}
inline EnterStep GoToIf(const Control& usable, Control& to) {
    return {&to, false, &usable};
}
inline EnterStep Press(Control& button) {
    return {&button, true};
}

struct EnterRow {
    Control* From;
    std::vector<EnterStep> Steps;
};

class FieldForm : public Form {
  public:
    const std::vector<FieldRow>& Fields() const noexcept { return fields_; }
    const std::vector<EnterRow>& EnterRows() const noexcept { return enterRows_; }

    // What the user can change, as texts: boxes, dates, lists, options and check boxes, in the order of the controls.
    virtual std::vector<std::string> Inputs() const;

  protected:
    using Form::Form;

    // In the order in which they are checked.
    void SetFields(std::vector<FieldRow> fields) { fields_ = std::move(fields); }
    // Binds Enter in each row's box.
    void SetEnterRows(std::vector<EnterRow> rows);

    void ShowFields();
    // False at the first field that is not valid, after the message.
    bool CheckFields();
    // Reads all boxes, the hidden ones too, and then stores all values. A box that was not checked and holds nothing
    // that its field can take leaves the field as it was. Throws Failure, with nothing stored, when a checked value
    // does not fit its field.
    void StoreFields();

  private:
    void FollowEnter(const std::vector<EnterStep>& steps);

    std::vector<FieldRow> fields_;
    std::vector<EnterRow> enterRows_;
};

}  // namespace lithmark
