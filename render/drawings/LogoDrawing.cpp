// The mark of the program, where a form shows it: a raft on layers of soil and the waves of its stresses.
#include <QPainterPath>

#include "render/drawings/Logo.h"
#include "render/drawings/Sketch.h"

namespace lithmark {

namespace {

const QColor kSky(0xDF, 0xEC, 0xF7), kSand(0xE3, 0xC5, 0x8F), kClay(0xB9, 0x7A, 0x4F), kRock(0x6B, 0x5B, 0x53),
    kRaft(0x2B, 0x3A, 0x4A), kWaves(0x1F, 0x77, 0xC4);

}  // namespace

// Drawn on a field of 24 by 24.
void DrawLogo(QPainter& painter, const QRectF& area) {
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(area.width() / 24, area.height() / 24);
    painter.setPen(Qt::NoPen);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(0, 0, 24, 24), 4, 4);
    painter.setClipPath(frame, Qt::IntersectClip);
    painter.fillRect(QRectF(0, 0, 24, 24), kSky);
    painter.fillRect(QRectF(0, 11, 24, 5), kSand);
    painter.fillRect(QRectF(0, 16, 24, 4), kClay);
    painter.fillRect(QRectF(0, 20, 24, 4), kRock);
    painter.fillRect(QRectF(9.6, 3, 4.8, 5.5), kRaft);
    painter.fillRect(QRectF(5.5, 8.2, 13, 2.8), kRaft);
    painter.setPen(QPen(kWaves, 0.7));
    painter.setBrush(Qt::NoBrush);
    for (const double r : {4.5, 7.5, 10.5}) painter.drawArc(QRectF(12 - r, 11 - r, 2 * r, 2 * r), 180 * 16, 180 * 16);
    painter.restore();
}

void LogoDrawing(Sketch& sketch) {
    DrawLogo(sketch.Painter, sketch.Area.toRect());
}

}  // namespace lithmark
