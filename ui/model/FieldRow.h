// FieldRow: all that a form says of one field, told once as a row. Captions, the field's line in the window, showing
// and hiding, checking, storing and the way of the Enter key are loops over the rows, so that a field is a row and the
// controls that it names.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/Session.h"
#include "core/Units.h"
#include "ui/model/Controls.h"

namespace lithmark {

// Where a field's value lies in the record (a quantity, an element of an array, a whole number) and the format that
// shows it, a plain number without one. `{}` is nowhere: the form itself shows and stores what the box holds.
class StoredField {
  public:
    using NumberFormat = std::string SessionRecord::*;
    StoredField() = default;
    StoredField(Single SessionRecord::*value, NumberFormat format = nullptr) : place_(value), format_(format) {}
    StoredField(Integer SessionRecord::*value, NumberFormat format = nullptr) : place_(value), format_(format) {}
    StoredField(Array<Single> SessionRecord::*values, int index, NumberFormat format = nullptr)
        : place_(Element{values, index}), format_(format) {}

    bool Exists() const noexcept { return !std::holds_alternative<std::monostate>(place_); }
    bool Whole() const noexcept { return std::holds_alternative<Integer SessionRecord::*>(place_); }
    // As the command line names it: "Es", "hLayer(2)"; empty for nowhere.
    std::string Name() const;
    double Get(const SessionRecord& record) const;
    // A value as the box shows it, in display units.
    std::string Formatted(const SessionRecord& record, double shown) const;
    // Rounds a quantity to 32 bits, a whole number to the nearest one. Overflow when it does not fit.
    void Set(SessionRecord& record, double value) const;
    // Fails as Set would, and stores nothing.
    void CheckFits(double value) const;

  private:
    struct Element {
        Array<Single> SessionRecord::*Values;
        int Index;
    };
    std::variant<std::monostate, Single SessionRecord::*, Integer SessionRecord::*, Element> place_;
    NumberFormat format_ = nullptr;
};

inline constexpr double kNoLimit = 1e38;

// A limit in base units, or one worked out from other boxes of the form, which is in the unit of the box. From kNoLimit
// on a limit is none.
class Limit {
  public:
    Limit(double base) : base_(base) {}
    Limit(std::function<double()> shown) : shown_(std::move(shown)) {}
    // As the user types it in a box whose unit has this factor. `none` while the boxes that the limit is worked out
    // from hold no numbers; their own checks tell that.
    double Shown(double factor, double none) const;

  private:
    double base_ = 0;
    std::function<double()> shown_;
};

// `{}` takes every number, `{0}` none below 0, `{0, 0.5}` those from 0 to 0.5.
struct Range {
    Limit Lower = -kNoLimit, Upper = kNoLimit;
};

// When a field must hold a valid number. A hidden box is checked all the same by a row that says Always.
enum class CheckedWhen { Always, Shown, Enabled };

// A label of a field's line and what it says; none where a line has no such label.
struct LabelPart {
    LabelPart() = default;
    LabelPart(Control& on, Words says) : On(&on), Says(std::move(says)) {}
    Control* On = nullptr;
    Words Says;
};

// What a field is counted in, and the label that shows it, if there is one. A label with words of its own stands beside
// a plain number.
struct UnitPart {
    UnitPart() = default;
    UnitPart(Unit in) : In(in) {}
    UnitPart(Control& on, Unit in) : On(&on), In(in), Says([in] { return LabelOf(in); }) {}
    UnitPart(Control& on, Words says) : On(&on), Says(std::move(says)) {}
    Control* On = nullptr;
    Unit In = Unit::None;
    Words Says;
};

// Where Enter leads: the first step of a field whose condition holds, the focus moved or the button pressed.
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

struct FieldRow {
    FieldRow(LabelPart label, LabelPart symbol, Control& box, UnitPart in = {}, StoredField field = {},
             Range limits = {}, std::vector<EnterStep> enter = {}, CheckedWhen checked = CheckedWhen::Always,
             Words name = {}, Control* beside = nullptr)
        : Label(std::move(label)),
          Symbol(std::move(symbol)),
          Box(box),
          In(std::move(in)),
          Field(field),
          Limits(std::move(limits)),
          Enter(std::move(enter)),
          Checked(checked),
          Name(std::move(name)),
          Beside(beside) {}

    LabelPart Label, Symbol;
    Control& Box;  // a text box; a list or a date where the form shows and stores the field itself
    UnitPart In;
    StoredField Field;
    Range Limits;
    std::vector<EnterStep> Enter;
    CheckedWhen Checked;
    Words Name;       // in messages; without it the caption that the label has at the time
    Control* Beside;  // a second control of the line, or null

    // What Show put into the box, and the value that stands behind it. The form's own.
    struct ShownValue {
        std::string Text;
        double Value;  // in base units
    };
    std::optional<ShownValue> Last;

    bool IsChecked() const;
    std::string MessageName() const;
    // The stored value in the unit of the box, by its format.
    void Show(const SessionRecord& record);
    // The user has not changed the text since it was shown. The value behind it is then the stored one, whatever format
    // and unit it was shown in.
    bool Untouched() const { return Last && Last->Text == Box.Text; }
    // Why the box cannot be stored, as a message that names the field and its range; nothing when it can be or needs
    // no check.
    std::optional<std::string> Fault() const;
    // The value in base units. InvalidArgument when the box holds no number, Overflow when it does not fit the field.
    double Read() const;
    // The same in the unit of the box.
    double ReadShown() const;

    // The controls of the line: label, symbol, box, what stands beside it, unit.
    std::vector<Control*> Line() const;
};

}  // namespace lithmark
