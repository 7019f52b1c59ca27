// Symbols in print where no rich text stands: the letter italic, its index upright and lowered.
#pragma once

#include <QFont>
#include <QRectF>
#include <string>

class QPainter;

namespace lithmark {

// In the painter's pen and font, at a side of the place and in the middle of its height.
void PaintSymbol(QPainter& painter, const QRectF& place, const std::string& plain, Qt::Alignment side);
int SymbolWidth(const QFont& font, const std::string& plain);

}  // namespace lithmark
