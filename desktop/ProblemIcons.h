// The icons of the problems: each tells its own from the others of its family at 16 pixels.
#pragma once

#include <QColor>

class QPainter;

namespace lithmark {

namespace iconcolours {
inline const QColor kBlue(0x1F, 0x77, 0xC4), kSand(0xE3, 0xC5, 0x8F), kClay(0xB9, 0x7A, 0x4F);
}

// On a field of 24 by 24; `outline` is seen on the ground of the window.
void DrawProblemIcon(QPainter& painter, int problemType, const QColor& outline);

}  // namespace lithmark
