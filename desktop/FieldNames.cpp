#include "desktop/FieldNames.h"

#include <QStringList>
#include <QWidget>

#include "core/Units.h"
#include "desktop/BoxWords.h"
#include "desktop/FormView.h"
#include "desktop/PageTools.h"
#include "render/QtText.h"
#include "ui/model/BoxMarks.h"
#include "ui/model/FindField.h"

namespace lithmark {

namespace {

bool IsField(const Control& control) {
    switch (control.Kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::DatePicker:
        case ControlKind::TextArea:
        case ControlKind::Tab:
        case ControlKind::List:
            return true;
        default:
            return false;
    }
}

// A caption as a name: without its mark and its colon.
QString NameOf(const std::string& caption) {
    QString name = PlainCaption(caption).trimmed();
    while (name.endsWith(QLatin1Char(':'))) name.chop(1);
    return name;
}

QString DescriptionOf(const FieldRow& row) {
    const double factor = FactorOf(row.In.In);
    const BoxWords box{row.Symbol.On != nullptr ? row.Symbol.On->Caption : std::string(),
                       row.In.On != nullptr ? row.In.On->Caption : std::string(),
                       row.Limits.Lower.Shown(factor, -kNoLimit), row.Limits.Upper.Shown(factor, kNoLimit)};
    return Description(box, row.Fault().value_or(""));
}

// Of a box of words: what its text gives, where that stands beside it, and what is wrong with it.
QString DescriptionOfWords(const FieldRow& row, const std::string& mark) {
    QStringList words;
    const bool shows = row.Beside != nullptr && row.Beside->Kind == ControlKind::TextLabel;
    if (shows && !row.Beside->Caption.empty()) words.append(Q(row.Beside->Caption));
    if (!mark.empty()) words.append(FaultInWords(mark));
    return words.join(QStringLiteral("; "));
}

// A screen reader hears of a change, and of nothing else.
void TellDescription(QWidget& widget, const QString& words) {
    if (widget.accessibleDescription() != words) widget.setAccessibleDescription(words);
}

}  // namespace

void NameFields(FormView& view) {
    Form& form = view.Model();
    const auto* marks = dynamic_cast<const BoxMarks*>(&form);
    QString before = NameOf(form.Caption);
    for (const Control* control : form.Controls()) {
        const bool heading = control->Kind == ControlKind::TextLabel || control->Kind == ControlKind::Frame;
        if (heading && !control->Caption.empty() && !control->Symbol && !control->Caption.starts_with('['))
            before = NameOf(control->Caption);
        if (!IsField(*control)) continue;
        QWidget& widget = *view.WidgetOf(*control);
        const FieldRow* row = FindField(form, *control);
        const bool labelled = row != nullptr && row->Label.On != nullptr && !row->Label.On->Caption.empty();
        const QString name = labelled ? NameOf(row->Label.On->Caption) : before;
        if (widget.accessibleName() != name) widget.setAccessibleName(name);
        if (row == nullptr) continue;
        TellDescription(widget, row->Field.Exists()
                                    ? DescriptionOf(*row)
                                    : DescriptionOfWords(*row, marks != nullptr ? marks->MarkOf(*control) : ""));
    }
}

}  // namespace lithmark
