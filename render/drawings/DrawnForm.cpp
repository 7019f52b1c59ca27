#include "render/drawings/DrawnForm.h"

#include <algorithm>

#include "base/Failure.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "ui/model/Figure.h"

namespace lithmark {

namespace {

constexpr int kLongestNumber = 11, kShortDigits = 4;

bool Reached(const Control& box) {
    return box.Visible && box.Enabled;
}

// "1E+38" for a number of 39 digits.
QString Shortened(const FieldRow& row, const QString& text) {
    if (text.size() <= kLongestNumber) return text;
    try {
        QString number = QString::number(row.ReadShown(), 'G', kShortDigits);
        return number.replace(QLatin1Char('.'), QLatin1Char(SharedServices().DecimalSign));
    } catch (const Failure&) {
        return text.left(kLongestNumber);
    }
}

QString WithoutBrackets(QString unit) {
    if (unit.startsWith(QLatin1Char('[')) && unit.endsWith(QLatin1Char(']'))) unit = unit.mid(1, unit.size() - 2);
    return unit == QLatin1String("-") ? QString() : unit;
}

}  // namespace

DrawnForm::DrawnForm(const Control& picture) : figure_(picture.Shows) {
    Follow();
}

void DrawnForm::Follow() {
    if (figure_ == nullptr) return;
    FormDraft draft = figure_->Of.Draft();
    faulty_.clear();
    for (const BoxFault& fault : draft.Faults) faulty_.push_back(fault.Box);
    if (!draft.Valid() && good_) return;
    good_ = draft.Valid();
    record_ = std::move(draft.Record);
}

DrawnBox DrawnForm::BoxOf(const Control& control) const {
    DrawnBox box;
    box.Of = &control;
    box.Text = Q(control.Text).trimmed();
    box.Focused = figure_->Of.Focus == &control;
    box.Faulty = std::find(faulty_.begin(), faulty_.end(), &control) != faulty_.end();
    const FieldRow* row = figure_->Of.RowOf(control);
    if (row == nullptr) return box;
    if (row->Symbol.On != nullptr) box.Symbol = row->Symbol.Says.Text();
    if (row->In.On != nullptr) box.Unit = WithoutBrackets(Q(row->In.On->Caption));
    box.Text = Shortened(*row, box.Text);
    return box;
}

std::optional<DrawnBox> DrawnForm::Find(const std::string& name) const {
    const Control* control = figure_ != nullptr ? figure_->Of.Find(name) : nullptr;
    if (control == nullptr || !Reached(*control)) return std::nullopt;
    return BoxOf(*control);
}

std::vector<DrawnBox> DrawnForm::Boxes() const {
    std::vector<DrawnBox> boxes;
    if (figure_ == nullptr) return boxes;
    for (const FieldRow& row : figure_->Of.Fields())
        if (row.Field.Exists() && Reached(row.Box)) boxes.push_back(BoxOf(row.Box));
    return boxes;
}

}  // namespace lithmark
