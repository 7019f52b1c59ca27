#include "render/drawings/DrawnParts.h"

namespace lithmark {

void DrawDrainage(Sketch& s, const QRectF& clay, bool down) {
    const double length = s.LineHeight() * 1.3;
    const QPen pen = s.Pen(Ink::Water, 1.8);
    for (const double part : {0.42, 0.5, 0.58}) {
        const double x = clay.left() + clay.width() * part;
        s.Arrow({x, clay.top() + length * 0.3}, {x, clay.top() - length}, pen);
        if (down) s.Arrow({x, clay.bottom() - length * 0.3}, {x, clay.bottom() + length}, pen);
    }
    if (!down) DrawRock(s, {clay.left(), clay.bottom(), clay.width(), length * 0.7});
}

void DrawRock(Sketch& s, const QRectF& room) {
    s.Rect(room, Qt::NoPen, s.Colour(Ink::Rock));
    s.Rect(room, Qt::NoPen, QBrush(s.Colour(Ink::Edge), Qt::FDiagPattern));
    s.Line(room.topLeft(), room.topRight(), s.Pen(Ink::Text, 1.6));
}

}  // namespace lithmark
