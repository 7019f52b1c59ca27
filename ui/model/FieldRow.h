// FieldRow: a form's numeric fields, each told once as a row. Showing, checking and storing are loops over the rows in
// their order, so that a form's table is all there is to say about its fields.
#pragma once

#include <functional>
#include <string>
#include <variant>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "base/TextId.h"
#include "core/Units.h"
#include "services/host/Form.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// Where a field's value lies in Session: a quantity, an element of an array, or a whole number.
class StoredField {
  public:
    StoredField(Single& value) : place_(&value) {}
    StoredField(Integer& value) : place_(&value) {}
    StoredField(Array<Single>& values, int index) : place_(Element{&values, index}) {}

    double Get() const;
    // Rounds a quantity to 32 bits, a whole number to the nearest one. Overflow when it does not fit.
    void Set(double value) const;
    // Fails as Set would, and stores nothing.
    void CheckFits(double value) const;

  private:
    struct Element {
        Array<Single>* Values;
        int Index;
    };
    std::variant<Single*, Integer*, Element> place_;
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

// How messages name a field: a text, a coordinate's name, or the caption that a label has at the time.
class FieldName {
  public:
    FieldName(TextId id) : name_(id) {}
    FieldName(Axis axis) : name_(axis) {}
    FieldName(const Control& caption) : name_(&caption) {}
    std::string Text() const;

  private:
    std::variant<TextId, Axis, const Control*> name_;
};
// "x-coordinate" in the language in force.
std::string CoordinateName(Axis axis);

// When a field must hold a valid number. A hidden box is checked all the same by a row that says Always.
enum class CheckedWhen { Always, Shown, Enabled };

struct FieldRow {
    Control& Box;
    StoredField Field;
    Unit In;
    const std::string& Format;  // a field of Session and no temporary, so that a change of the formats is seen
    Limit Lower, Upper;
    FieldName Name;
    CheckedWhen Checked = CheckedWhen::Always;

    bool IsChecked() const;
    // The stored value in the unit of the box, by its format.
    void Show() const;
    // False after a message that names the field and its range, with the focus on the box. True when nothing is to be
    // checked.
    bool Check(Form& form) const;
    // The value of the box in base units. InvalidArgument when it holds no number, Overflow when it does not fit the
    // field.
    double Read() const;
};

}  // namespace lithmark
