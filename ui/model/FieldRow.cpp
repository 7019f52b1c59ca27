#include "ui/model/FieldRow.h"

#include <cmath>

#include "core/SessionFields.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kRealNumber = 2;

}  // namespace

std::string StoredField::Name() const {
    if (const auto* single = std::get_if<Single SessionRecord::*>(&place_))
        return std::string(NameOf(&(Session.**single)));
    if (const auto* integer = std::get_if<Integer SessionRecord::*>(&place_))
        return std::string(NameOf(&(Session.**integer)));
    const auto* element = std::get_if<Element>(&place_);
    if (element == nullptr) return {};
    return std::string(NameOf(&(Session.*element->Values))) + "(" + std::to_string(element->Index) + ")";
}

double StoredField::Get(const SessionRecord& record) const {
    if (const auto* single = std::get_if<Single SessionRecord::*>(&place_)) return record.**single;
    if (const auto* integer = std::get_if<Integer SessionRecord::*>(&place_)) return record.**integer;
    const auto& element = std::get<Element>(place_);
    return (record.*element.Values)(element.Index);
}

std::string StoredField::Formatted(const SessionRecord& record, double shown) const {
    return FormatValue(shown, format_ != nullptr ? record.*format_ : std::string());
}

void StoredField::Set(SessionRecord& record, double value) const {
    if (const auto* single = std::get_if<Single SessionRecord::*>(&place_)) {
        record.** single = value;
    } else if (const auto* integer = std::get_if<Integer SessionRecord::*>(&place_)) {
        record.** integer = Integer::Rounded(value);
    } else {
        const auto& element = std::get<Element>(place_);
        (record.*element.Values)(element.Index) = value;
    }
}

void StoredField::CheckFits(double value) const {
    if (std::holds_alternative<Integer SessionRecord::*>(place_))
        static_cast<void>(Integer::Rounded(value));
    else
        static_cast<void>(Single(value));
}

double Limit::Shown(double factor, double none) const {
    if (!shown_) return std::abs(base_) >= kNoLimit ? base_ : base_ * factor;
    try {
        return shown_();
    } catch (const Failure&) {
        return none;
    }
}

bool FieldRow::IsChecked() const {
    switch (Checked) {
        case CheckedWhen::Shown:
            return Box.Visible;
        case CheckedWhen::Enabled:
            return Box.Enabled;
        default:
            return true;
    }
}

std::string FieldRow::MessageName() const {
    if (!Name.Empty()) return Name.Text();
    return Label.On != nullptr ? Label.On->Caption : std::string();
}

void FieldRow::Show(const SessionRecord& record) {
    const double value = Field.Get(record);
    Box.Text = Field.Formatted(record, value * FactorOf(In.In));
    Last = ShownValue{Box.Text, value};
}

std::optional<std::string> FieldRow::Fault() const {
    if (!IsChecked()) return std::nullopt;
    const double factor = FactorOf(In.In);
    const double lower = Limits.Lower.Shown(factor, -kNoLimit), upper = Limits.Upper.Shown(factor, kNoLimit);
    // A value that its format shows outside the range is inside all the same: 1.6667 m as 1.67 beside a limit of 5/3 m.
    if (Untouched() && Last->Value * factor >= lower && Last->Value * factor <= upper) return std::nullopt;
    if (auto fault = SharedServices().NumberFault(Box, kRealNumber, upper, lower, MessageName())) return fault;
    try {
        static_cast<void>(Read());
    } catch (const Failure&) {
        return Text(906100_text, {{"|1", MessageName()}});
    }
    return std::nullopt;
}

double FieldRow::Read() const {
    if (Untouched()) return Last->Value;
    const double value = Quotient(SharedServices().GetNumber(Box), FactorOf(In.In));
    Field.CheckFits(value);
    return value;
}

double FieldRow::ReadShown() const {
    return Untouched() ? Last->Value * FactorOf(In.In) : SharedServices().GetNumber(Box);
}

std::vector<Control*> FieldRow::Line() const {
    std::vector<Control*> controls;
    for (Control* control : {Label.On, Symbol.On, &Box, Beside, In.On})
        if (control != nullptr) controls.push_back(control);
    return controls;
}

}  // namespace lithmark
