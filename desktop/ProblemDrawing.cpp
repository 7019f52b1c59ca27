#include "desktop/ProblemDrawing.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace lithmark {

namespace {

const QColor kInk(0x1F, 0x2A, 0x36), kSoil(0xF1, 0xE3, 0xC8), kSoilSide(0xE4, 0xD2, 0xAE), kLoad(0x0B, 0x5F, 0xA5),
    kLoadArea(0x9C, 0xC8, 0xEC, 200), kPoint(0xC2, 0x3B, 0x22), kAxis(0x5A, 0x66, 0x72);

// A parallel perspective: x to the lower left, y to the right, z downwards.
class Scene {
  public:
    Scene(QPainter& painter, const QRect& area)
        : Painter(painter),
          scale_(std::min(area.width() / 12.8, area.height() / 10.4)),
          origin_(area.left() + area.width() * 0.48, area.top() + area.height() * 0.5 - 1.85 * scale_) {}

    QPointF At(double x, double y, double z) const {
        return origin_ + QPointF(y * scale_ - 0.5 * x * scale_, 0.38 * x * scale_ + z * scale_);
    }
    double Scale() const { return scale_; }

    void Line(const QPointF& from, const QPointF& to, const QPen& pen) const {
        Painter.setPen(pen);
        Painter.drawLine(from, to);
    }
    void Arrow(const QPointF& from, const QPointF& to, const QPen& pen) const {
        Line(from, to, pen);
        const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
        const double size = (pen.widthF() > 2 ? 0.5 : 0.22) * scale_;
        QPolygonF head;
        head << to << to - QPointF(size * std::cos(angle - 0.4), size * std::sin(angle - 0.4))
             << to - QPointF(size * std::cos(angle + 0.4), size * std::sin(angle + 0.4));
        Painter.setBrush(pen.color());
        Painter.setPen(Qt::NoPen);
        Painter.drawPolygon(head);
    }
    void Polygon(const QPolygonF& polygon, const QPen& pen, const QBrush& brush) const {
        Painter.setPen(pen);
        Painter.setBrush(brush);
        Painter.drawPolygon(polygon);
    }
    // A symbol centred at a place.
    void Symbol(const QPointF& place, const QString& text, const QColor& color) const {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(std::max(11, static_cast<int>(0.42 * scale_)));
        font.setItalic(true);
        Painter.setFont(font);
        Painter.setPen(color);
        Painter.drawText(QRectF(place.x() - 40, place.y() - 15, 80, 30), Qt::AlignCenter, text);
    }

    QPainter& Painter;

  private:
    double scale_;
    QPointF origin_;
};

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

}  // namespace

void DrawStressProblem(QPainter& painter, const QRect& area, int load) {
    painter.fillRect(area, Qt::white);
    const Scene scene(painter, area);
    DrawGround(scene);
    DrawAxes(scene);
    DrawPoint(scene);
    if (load == 0) DrawPointLoad(scene);
    if (load == 1) DrawRectangle(scene);
    if (load == 2) DrawCircle(scene);
}

}  // namespace lithmark
