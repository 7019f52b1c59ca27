#include "desktop/BoxWords.h"

#include <QStringList>

#include "desktop/PageTools.h"
#include "render/QtText.h"
#include "render/drawings/Symbols.h"
#include "services/texts/LanguageTexts.h"
#include "ui/model/FieldRow.h"

namespace lithmark {

namespace {

std::string Number(double value) {
    return PlainNumber(value).toStdString();
}

// "0 to 0.5"; empty where every number will do.
QString RangeOf(double least, double greatest) {
    const bool below = least > -kNoLimit, above = greatest < kNoLimit;
    if (below && above) return Q(Text(910201_text, {{"|1", Number(least)}, {"|2", Number(greatest)}}));
    if (below) return Q(Text(910202_text, {{"|1", Number(least)}}));
    return above ? Q(Text(910203_text, {{"|1", Number(greatest)}})) : QString();
}

}  // namespace

QString Description(const BoxWords& box, const std::string& fault) {
    QStringList words;
    if (!box.Symbol.empty()) words.append(SpokenSymbol(box.Symbol));
    QString unit = Q(box.Unit);
    unit.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    if (unit.isEmpty() || unit == QLatin1String("-")) unit = Q(Text(910200_text));
    words.append(unit);
    if (const QString range = RangeOf(box.Least, box.Greatest); !range.isEmpty()) words.append(range);
    QString all = words.join(QStringLiteral(", "));
    if (!fault.empty()) all += QStringLiteral("; ") + FaultInWords(fault);
    return all;
}

QString FaultInWords(const std::string& fault) {
    return Q(Text(910204_text, {{"|1", fault}}));
}

}  // namespace lithmark
