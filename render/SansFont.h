// The font of drawings, plots and margins.
#pragma once

#include <QFont>
#include <QString>

namespace lithmark {

// Of the texts at axes and in legends.
inline constexpr int kPlotTextPixels = 12;

// The size is rounded to whole pixels.
inline QFont SansFont(double pixels, bool bold = false) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(pixels));
    font.setBold(bold);
    return font;
}

}  // namespace lithmark
