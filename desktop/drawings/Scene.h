// Scene: the ground in parallel perspective, and what drawings on it are made of.
#pragma once

#include <QColor>
#include <QPainter>

namespace lithmark {

namespace inks {
inline const QColor kInk(0x1F, 0x2A, 0x36), kSoil(0xF1, 0xE3, 0xC8), kSoilSide(0xE4, 0xD2, 0xAE),
    kLoad(0x0B, 0x5F, 0xA5), kLoadArea(0x9C, 0xC8, 0xEC, 200), kPoint(0xC2, 0x3B, 0x22), kAxis(0x5A, 0x66, 0x72);
}  // namespace inks

// x goes to the lower left, y to the right, z downwards. Units are tenths of the drawing's width, about.
class Scene {
  public:
    Scene(QPainter& painter, const QRect& area);

    QPointF At(double x, double y, double z) const {
        return origin_ + QPointF(y * scale_ - 0.5 * x * scale_, 0.38 * x * scale_ + z * scale_);
    }
    double Scale() const { return scale_; }

    void Line(const QPointF& from, const QPointF& to, const QPen& pen) const;
    // With its head at `to`.
    void Arrow(const QPointF& from, const QPointF& to, const QPen& pen) const;
    void Polygon(const QPolygonF& polygon, const QPen& pen, const QBrush& brush) const;
    // A symbol centred at a place.
    void Symbol(const QPointF& place, const QString& text, const QColor& color) const;

    QPainter& Painter;

  private:
    double scale_;
    QPointF origin_;
};

}  // namespace lithmark
