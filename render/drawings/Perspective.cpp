#include "render/drawings/Perspective.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lithmark {

Perspective::Perspective(Sketch& sketch, const QRectF& room, const Block& block, double above)
    : sketch_(sketch), block_(block) {
    QRectF figure(Flat(-block.X, -block.Y, 0), Flat(-block.X, block.Y, 0));
    const double bottom = block.Depths.back();
    for (const QPointF& corner : {Flat(block.X, -block.Y, bottom), Flat(block.X, block.Y, bottom),
                                  Flat(-block.X, block.Y, bottom), Flat(block.X, -block.Y, 0), Flat(0, 0, -above)}) {
        figure.setLeft(std::min(figure.left(), corner.x()));
        figure.setRight(std::max(figure.right(), corner.x()));
        figure.setTop(std::min(figure.top(), corner.y()));
        figure.setBottom(std::max(figure.bottom(), corner.y()));
    }
    scale_ = sketch.Steady(std::min(room.width() / figure.width(), room.height() / figure.height()));
    origin_ = room.center() - figure.center() * scale_;
}

double Perspective::SpareDepth(const QRectF& room, const Block& block, double above) {
    const double width = Flat(-block.X, block.Y, 0).x() - Flat(block.X, -block.Y, 0).x();
    const double height = Flat(block.X, 0, block.Depths.back()).y() - std::min(Flat(-block.X, 0, 0).y(), -above);
    // No tower: from here on the figure stands in the middle of its room.
    constexpr double kSlimmest = 1.45;
    return width * std::min(room.height() / room.width(), kSlimmest) - height;
}

double Perspective::SpareWidth(const QRectF& room, const Block& block, double above) {
    return -SpareDepth(room, block, above) * room.width() / room.height() / 2;
}

QPolygonF Perspective::Circle(double radius, double z) const {
    constexpr int kParts = 72;
    QPolygonF ring;
    for (int i = 0; i < kParts; ++i) {
        const double angle = 2 * std::numbers::pi * i / kParts;
        ring << At(radius * std::cos(angle), radius * std::sin(angle), z);
    }
    return ring;
}

QPolygonF Perspective::Rectangle(double a, double b, double z) const {
    return QPolygonF({At(-a / 2, -b / 2, z), At(-a / 2, b / 2, z), At(a / 2, b / 2, z), At(a / 2, -b / 2, z)});
}

void Perspective::Surface() const {
    sketch_.Polygon(Rectangle(2 * block_.X, 2 * block_.Y, 0), sketch_.Pen(Ink::Edge), sketch_.Colour(Ink::SoilTop));
}

void Perspective::Layer(double from, double to, Ink ink, bool hatched) const {
    const double x = block_.X, y = block_.Y;
    const QColor fill = sketch_.Colour(ink);
    const QPolygonF front({At(x, -y, from), At(x, y, from), At(x, y, to), At(x, -y, to)});
    const QPolygonF side({At(x, y, from), At(-x, y, from), At(-x, y, to), At(x, y, to)});
    sketch_.Polygon(front, sketch_.Pen(Ink::Edge), fill);
    sketch_.Polygon(side, sketch_.Pen(Ink::Edge), fill.darker(106));
    if (!hatched) return;
    const QBrush unknown(sketch_.Colour(Ink::Edge), Qt::BDiagPattern);
    sketch_.Polygon(front, Qt::NoPen, unknown);
    sketch_.Polygon(side, Qt::NoPen, unknown);
}

QRectF Perspective::Front(double from, double to) const {
    return {At(block_.X, -block_.Y, from), At(block_.X, block_.Y, to)};
}

}  // namespace lithmark
