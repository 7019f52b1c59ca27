#include "ui/model/FieldRow.h"

#include <cmath>

#include "core/Session.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kRealNumber = 2;

}  // namespace

double StoredField::Get() const {
    if (const auto* single = std::get_if<Single*>(&place_)) return **single;
    if (const auto* integer = std::get_if<Integer*>(&place_)) return **integer;
    const auto& element = std::get<Element>(place_);
    return (*element.Values)(element.Index);
}

void StoredField::Set(double value) const {
    if (const auto* single = std::get_if<Single*>(&place_)) {
        **single = value;
    } else if (const auto* integer = std::get_if<Integer*>(&place_)) {
        **integer = Integer::Rounded(value);
    } else {
        const auto& element = std::get<Element>(place_);
        (*element.Values)(element.Index) = value;
    }
}

void StoredField::CheckFits(double value) const {
    if (std::holds_alternative<Integer*>(place_))
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

std::string FieldName::Text() const {
    if (const auto* id = std::get_if<TextId>(&name_)) return lithmark::Text(*id);
    if (const auto* axis = std::get_if<Axis>(&name_)) return CoordinateName(*axis);
    return std::get<const Control*>(name_)->Caption;
}

std::string CoordinateName(Axis axis) {
    return Text(90001_text, {{"|1", LanguageTexts().AxisName(axis)}});
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

void FieldRow::Show() const {
    Box.Text = FormatValue(Field.Get() * FactorOf(In), Format);
}

bool FieldRow::Check(Form& form) const {
    if (!IsChecked()) return true;
    const double factor = FactorOf(In);
    return SharedServices().CheckNumber(form, Box, kRealNumber, Upper.Shown(factor, kNoLimit),
                                        Lower.Shown(factor, -kNoLimit), Name.Text());
}

double FieldRow::Read() const {
    const double value = Quotient(SharedServices().GetNumber(Box), FactorOf(In));
    Field.CheckFits(value);
    return value;
}

}  // namespace lithmark
