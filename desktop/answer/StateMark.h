// The small signs before words about an answer, drawn by vectors.
#pragma once

#include <QPixmap>

class QColor;

namespace lithmark {

enum class StateMark { None, Tick, Clock, Exclamation };

inline constexpr int kMarkSize = 16;

QPixmap PixmapOf(StateMark mark, const QColor& ink, int size, double ratio);

}  // namespace lithmark
