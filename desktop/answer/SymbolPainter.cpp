#include "desktop/answer/SymbolPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "render/drawings/Symbols.h"

namespace lithmark {

namespace {

constexpr double kIndexSize = 0.7, kLowered = 0.25;  // of the letter's

QFont LetterFont(QFont font) {
    font.setItalic(true);
    return font;
}

QFont IndexFont(QFont font) {
    font.setPointSizeF(font.pointSizeF() * kIndexSize);
    return font;
}

}  // namespace

int SymbolWidth(const QFont& font, const std::string& plain) {
    const auto [letter, index] = SymbolInPrint(plain);
    return static_cast<int>(std::ceil(QFontMetricsF(LetterFont(font)).horizontalAdvance(letter) +
                                      QFontMetricsF(IndexFont(font)).horizontalAdvance(index))) +
           1;
}

void PaintSymbol(QPainter& painter, const QRectF& place, const std::string& plain, Qt::Alignment side) {
    const auto [letter, index] = SymbolInPrint(plain);
    const QFont font = painter.font();
    const QFontMetricsF metrics(font);
    const double width = SymbolWidth(font, plain);
    const double x = side.testFlag(Qt::AlignRight)     ? place.right() - width
                     : side.testFlag(Qt::AlignHCenter) ? place.center().x() - width / 2
                                                       : place.left();
    const double base = place.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    painter.setFont(LetterFont(font));
    painter.drawText(QPointF(x, base), letter);
    const double behind = x + QFontMetricsF(painter.font()).horizontalAdvance(letter) + 1;
    painter.setFont(IndexFont(font));
    painter.drawText(QPointF(behind, base + metrics.ascent() * kLowered), index);
    painter.setFont(font);
}

}  // namespace lithmark
