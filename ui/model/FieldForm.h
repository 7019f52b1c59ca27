// FieldForm: a form whose fields, choices and captions are tables, and the way of the Enter key with them.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "ui/model/BoxMarks.h"
#include "ui/model/ChoiceRow.h"
#include "ui/model/FieldRow.h"

namespace lithmark {

// A box that cannot be stored, and the message that says why.
struct BoxFault {
    Control* Box;
    std::string Reason;
};

class FieldForm : public Form, public BoxMarks {
  public:
    const std::vector<FieldRow>& Fields() const noexcept { return fields_; }
    const std::vector<ChoiceRow>& Choices() const noexcept { return choices_; }
    // The row of a box; null when it has none.
    const FieldRow* RowOf(const Control& box) const;

    // What the user can change, as texts: boxes, dates, lists, options and check boxes, in the order of the controls.
    virtual std::vector<std::string> Inputs() const;

    std::string MarkOf(const Control& box) const override;
    bool Refused(const Control& box) const override { return refused_.contains(&box); }

  protected:
    using Form::Form;

    // In the order in which they are checked. Binds Enter in each box.
    void SetFields(std::vector<FieldRow> fields);
    // Binds the clicks.
    void SetChoices(std::vector<ChoiceRow> choices);
    // Of what belongs to no field and no choice: frames, buttons.
    void SetCaptionRows(std::vector<CaptionRow> rows) { captions_ = std::move(rows); }

    // All captions in the language in force.
    void ShowCaptions();
    // The stored values of Session.
    void ShowFields();
    // All choices as Session holds them, and then what follows from each.
    void ShowChoiceRows();
    // The number in a box in its unit, for limits that follow it. InvalidArgument when it holds none.
    double NumberIn(const Control& box) const;

    // What keeps the boxes from being stored, in the order of the rows.
    std::vector<BoxFault> Faults() const;
    // Marks the boxes of all faults, shows the message of the first and goes to its box.
    void Refuse(const std::vector<BoxFault>& faults);
    // Stores all values, those of hidden boxes too. A box that the user has not changed stores the very value that it
    // was shown from; one that was not checked and holds nothing that its field can take leaves the field as it was.
    // There are no faults.
    void StoreFields(SessionRecord& record) const;
    void StoreChoiceRows(SessionRecord& record) const;
    // From now on the boxes stand for the values of Session.
    void MarkStored();

    // The whole lines of these boxes: label, symbol, box, unit.
    void ShowLines(const ControlList& boxes, bool visible = true);
    // The same, but that a line which is off keeps its box in sight, disabled.
    void SwitchLines(const ControlList& boxes, bool on);

  private:
    void FollowEnter(const std::vector<EnterStep>& steps);

    std::vector<FieldRow> fields_;
    std::vector<ChoiceRow> choices_;
    std::vector<CaptionRow> captions_;
    std::set<const Control*> refused_;  // boxes that a command found at fault
};

}  // namespace lithmark
