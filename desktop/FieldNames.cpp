#include "desktop/FieldNames.h"

#include <QStringList>
#include <QWidget>

#include "core/Units.h"
#include "desktop/FormView.h"
#include "desktop/PageTools.h"
#include "render/QtText.h"
#include "render/drawings/Symbols.h"
#include "services/texts/LanguageTexts.h"
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

std::string Number(double value) {
    return PlainNumber(value).toStdString();
}

// "0 to 0.5"; empty where every number will do.
QString RangeOf(const FieldRow& row) {
    const double factor = FactorOf(row.In.In);
    const double lower = row.Limits.Lower.Shown(factor, -kNoLimit), upper = row.Limits.Upper.Shown(factor, kNoLimit);
    const bool below = lower > -kNoLimit, above = upper < kNoLimit;
    if (below && above) return Q(Text(910201_text, {{"|1", Number(lower)}, {"|2", Number(upper)}}));
    if (below) return Q(Text(910202_text, {{"|1", Number(lower)}}));
    return above ? Q(Text(910203_text, {{"|1", Number(upper)}})) : QString();
}

QString DescriptionOf(const FieldRow& row) {
    QStringList words;
    if (row.Symbol.On != nullptr && !row.Symbol.On->Caption.empty()) words.append(SpokenSymbol(row.Symbol.On->Caption));
    QString unit = row.In.On != nullptr ? Q(row.In.On->Caption) : QString();
    unit.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    if (unit.isEmpty() || unit == QLatin1String("-")) unit = Q(Text(910200_text));
    words.append(unit);
    if (const QString range = RangeOf(row); !range.isEmpty()) words.append(range);
    QString all = words.join(QStringLiteral(", "));
    if (const auto fault = row.Fault()) all += QStringLiteral("; ") + Q(Text(910204_text, {{"|1", *fault}}));
    return all;
}

// A screen reader hears of a change, and of nothing else.
void TellDescription(QWidget& widget, const QString& words) {
    if (widget.accessibleDescription() != words) widget.setAccessibleDescription(words);
}

}  // namespace

void NameFields(FormView& view) {
    Form& form = view.Model();
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
        if (row != nullptr && row->Field.Exists()) TellDescription(widget, DescriptionOf(*row));
    }
}

}  // namespace lithmark
