// Stresses, strains and displacements at a point: the half-space in parallel perspective with the load, the axes and
// the point with its coordinates.
#include <QPainterPath>
#include <cmath>
#include <numbers>
#include <vector>

#include "desktop/drawings/Drawings.h"
#include "desktop/drawings/Scene.h"

namespace lithmark {

namespace {

using namespace inks;

void DrawGround(const Scene& s) {
    const double x = 3.4, y = 4.2, z = 5.2;
    const QPen edge(kAxis, 1);
    s.Polygon(QPolygonF({s.At(-x, -y, 0), s.At(-x, y, 0), s.At(x, y, 0), s.At(x, -y, 0)}), edge, kSoil);
    s.Polygon(QPolygonF({s.At(x, -y, 0), s.At(x, y, 0), s.At(x, y, z), s.At(x, -y, z)}), edge, kSoilSide);
    s.Polygon(QPolygonF({s.At(x, y, 0), s.At(-x, y, 0), s.At(-x, y, z), s.At(x, y, z)}), edge, kSoilSide.darker(106));
}

void DrawAxes(const Scene& s) {
    const QPen axis(kAxis, 1.4);
    s.Arrow(s.At(0, 0, 0), s.At(4.3, 0, 0), axis);
    s.Symbol(s.At(4.8, 0, 0), QStringLiteral("x"), kAxis);
    s.Arrow(s.At(0, 0, 0), s.At(0, 4.9, 0), axis);
    s.Symbol(s.At(0, 5.2, 0), QStringLiteral("y"), kAxis);
    s.Arrow(s.At(0, 0, 0), s.At(0, 0, 5.0), axis);
    s.Symbol(s.At(0, 0.35, 5.0), QStringLiteral("z"), kAxis);
}

void DrawPoint(const Scene& s) {
    const double x = 2.2, y = 2.4, z = 3.4;
    const QPen dashed(kPoint, 1.2, Qt::DashLine);
    s.Line(s.At(x, 0, 0), s.At(x, y, 0), dashed);
    s.Line(s.At(0, y, 0), s.At(x, y, 0), dashed);
    s.Line(s.At(x, y, 0), s.At(x, y, z), dashed);
    s.Painter.setPen(Qt::NoPen);
    s.Painter.setBrush(kPoint);
    s.Painter.drawEllipse(s.At(x, y, z), 0.16 * s.Scale(), 0.16 * s.Scale());
    s.Symbol(s.At(x, y, z) + QPointF(1.05 * s.Scale(), 0.05 * s.Scale()), QStringLiteral("(x, y, z)"), kPoint);
    s.Symbol(s.At(x, y, z / 2) + QPointF(0.3 * s.Scale(), 0), QStringLiteral("z"), kPoint);
}

void DrawArrowsDown(const Scene& s, const std::vector<QPointF>& feet, double length) {
    for (const QPointF& foot : feet) s.Arrow(foot - QPointF(0, length * s.Scale()), foot, QPen(kLoad, 1.5));
}

void DrawRectangle(const Scene& s) {
    const double a = 1.3, b = 1.7, top = 1.3;
    const auto at = [&](double x, double y) { return s.At(x, y, 0); };
    s.Polygon(QPolygonF({at(-a, -b), at(-a, b), at(a, b), at(a, -b)}), QPen(kLoad, 1.6), kLoadArea);
    std::vector<QPointF> feet;
    for (const double y : {-b, -b / 2, 0.0, b / 2, b})
        for (const double x : {-a, a}) feet.push_back(at(x, y));
    DrawArrowsDown(s, feet, top);
    const QPointF up(0, -top * s.Scale());
    s.Polygon(QPolygonF({at(-a, -b) + up, at(-a, b) + up, at(a, b) + up, at(a, -b) + up}), QPen(kLoad, 1.2),
              Qt::NoBrush);
    s.Symbol(s.At(-a, 0, 0) + up - QPointF(0, 0.35 * s.Scale()), QStringLiteral("p"), kLoad);
    s.Symbol(s.At(0, -b, 0) - QPointF(0.35 * s.Scale(), 0.05 * s.Scale()), QStringLiteral("a"), kInk);
    s.Symbol(s.At(a, 0, 0) + QPointF(-0.5 * s.Scale(), 0.3 * s.Scale()), QStringLiteral("b"), kInk);
}

void DrawCircle(const Scene& s) {
    const double a = 1.6, top = 1.3;
    QPolygonF ring, upper;
    std::vector<QPointF> feet;
    const QPointF up(0, -top * s.Scale());
    constexpr int kParts = 72;
    for (int i = 0; i < kParts; ++i) {
        const double angle = 2 * std::numbers::pi * i / kParts;
        const QPointF foot = s.At(a * std::cos(angle), a * std::sin(angle), 0);
        ring << foot;
        upper << foot + up;
        if (i % 8 == 0) feet.push_back(foot);
    }
    s.Polygon(ring, QPen(kLoad, 1.6), kLoadArea);
    DrawArrowsDown(s, feet, top);
    s.Polygon(upper, QPen(kLoad, 1.2), Qt::NoBrush);
    s.Symbol(s.At(-a, 0, 0) + up - QPointF(0, 0.35 * s.Scale()), QStringLiteral("p"), kLoad);
    s.Line(s.At(0, 0, 0), s.At(0, -a, 0), QPen(kInk, 1.4));
    s.Symbol(s.At(0, -a / 2, 0) - QPointF(0, 0.28 * s.Scale()), QStringLiteral("a"), kInk);
}

void DrawPointLoad(const Scene& s) {
    s.Arrow(s.At(0, 0, -2.2), s.At(0, 0, 0), QPen(kLoad, 3.2));
    s.Symbol(s.At(0, 0.45, -1.9), QStringLiteral("Q"), kLoad);
}

void Draw(QPainter& painter, const QRect& area, const std::string& load) {
    painter.fillRect(area, Qt::white);
    const Scene scene(painter, area);
    DrawGround(scene);
    DrawAxes(scene);
    DrawPoint(scene);
    if (load == "point") DrawPointLoad(scene);
    if (load == "rectangle") DrawRectangle(scene);
    if (load == "circle") DrawCircle(scene);
}

const DrawingNamed kDrawing("stress", Draw);

}  // namespace

}  // namespace lithmark
