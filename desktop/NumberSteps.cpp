#include "desktop/NumberSteps.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "services/SharedServices.h"

namespace lithmark {

std::optional<SteppedNumber> StepNumber(const QString& text, int cursor, int steps, QChar decimalSign) {
    constexpr int kMostDigits = 15;
    const bool negative = text.startsWith(QLatin1Char('-'));
    QString digits;
    int decimals = -1,
        right = 0;  // digits behind the decimal sign (-1: there is none); digits right of the stepped one
    for (int i = negative ? 1 : 0; i < text.size(); ++i) {
        if (text.at(i) == decimalSign && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9')) return std::nullopt;
        digits += text.at(i);
        if (decimals >= 0) ++decimals;
        if (i >= cursor) ++right;
    }
    if (digits.isEmpty() || digits.size() > kMostDigits) return std::nullopt;
    right = std::min(right, static_cast<int>(digits.size()) - 1);
    qint64 step = steps;
    for (int i = 0; i < right; ++i) step *= 10;
    const qint64 value = (negative ? -1 : 1) * digits.toLongLong() + step;

    QString stepped = QString::number(std::abs(value));
    stepped =
        stepped.rightJustified(std::max(1 + std::max(decimals, 0), static_cast<int>(digits.size())), QLatin1Char('0'));
    // Zeros before the first digit stay only where a digit stood.
    while (stepped.size() > std::max(1 + std::max(decimals, 0), right + 1) && stepped.startsWith(QLatin1Char('0')))
        stepped.remove(0, 1);
    if (decimals >= 0) stepped.insert(stepped.size() - decimals, decimalSign);
    if (value < 0) stepped.prepend(QLatin1Char('-'));
    const int behind = static_cast<int>(text.size()) - std::max(cursor, negative ? 2 : 1);
    return SteppedNumber{stepped,
                         std::clamp(static_cast<int>(stepped.size()) - behind, 0, static_cast<int>(stepped.size()))};
}

bool StepByKey(QLineEdit& box, const QKeyEvent& key) {
    const int pressed = key.key();
    const int steps = pressed == Qt::Key_Up         ? 1
                      : pressed == Qt::Key_Down     ? -1
                      : pressed == Qt::Key_PageUp   ? 10
                      : pressed == Qt::Key_PageDown ? -10
                                                    : 0;
    if (steps == 0 || box.isReadOnly()) return false;
    const auto stepped = StepNumber(box.text(), box.cursorPosition(), steps, QLatin1Char(SharedServices().DecimalSign));
    if (!stepped) return false;
    box.setText(stepped->Text);
    box.setCursorPosition(stepped->Cursor);
    return true;
}

}  // namespace lithmark
