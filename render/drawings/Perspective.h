// Perspective: a block of the ground in parallel perspective. x goes to the lower left, y to the right, z downwards;
// the faces at the greatest x and y are seen.
#pragma once

#include <vector>

#include "render/drawings/Sketch.h"

namespace lithmark {

// Half the sides of the block, and the depths at which its layers end, from the surface on.
struct Block {
    double X, Y;
    std::vector<double> Depths;
};

class Perspective {
  public:
    // As large as the block, with `above` over its surface, fits into the room.
    Perspective(Sketch& sketch, const QRectF& room, const Block& block, double above);

    // By how much the block could go deeper, with what stands over it, until the figure is as slim as the room; below 0
    // it is slimmer already.
    static double SpareDepth(const QRectF& room, const Block& block, double above);
    // By how much half its width could grow then.
    static double SpareWidth(const QRectF& room, const Block& block, double above);

    QPointF At(double x, double y, double z) const { return origin_ + Flat(x, y, z) * scale_; }
    double Scale() const { return scale_; }
    // A circle or a rectangle at a depth.
    QPolygonF Circle(double radius, double z) const;
    QPolygonF Rectangle(double a, double b, double z) const;

    void Surface() const;
    // The two faces of a layer between two depths. `hatched`: nothing is known of it.
    void Layer(double from, double to, Ink ink, bool hatched = false) const;
    // The front face of a layer.
    QRectF Front(double from, double to) const;

  private:
    static QPointF Flat(double x, double y, double z) { return {y - 0.5 * x, 0.38 * x + z}; }

    Sketch& sketch_;
    const Block block_;
    double scale_ = 1;
    QPointF origin_;
};

}  // namespace lithmark
