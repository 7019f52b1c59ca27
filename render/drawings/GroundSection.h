// A section through the ground under a load: the surface, the load in the middle of it, what lies on the clay, the clay
// in one or two layers, and the vertical at the point.
#pragma once

#include <vector>

#include "render/drawings/Proportions.h"
#include "render/drawings/Sketch.h"

namespace lithmark {

// A clay layer and the box of its thickness.
struct DrawnClay {
    const char* Box;
    double Thickness;
};

// What a section leaves free around itself.
inline constexpr double kEdge = 6;

class GroundSection {
  public:
    // Where the layers lie in `room`, whose width shows load and vertical. `sublayer` is the thickness of the parts
    // that the clay is divided into; 0: they are not shown.
    GroundSection(Sketch& sketch, const QRectF& room, std::vector<DrawnClay> clay, double sublayer);

    void Draw() const;
    // The load on the surface, in the height above it.
    void DrawLoad(double height) const;
    // Load and point from above.
    void DrawPlan(const QRectF& room) const;

    double Surface() const noexcept { return room_.top(); }
    // The i-th clay layer.
    QRectF Layer(std::size_t i) const;
    // All clay layers.
    QRectF Clay() const;
    double Bottom() const { return Clay().bottom(); }

  private:
    double Middle() const { return room_.center().x(); }
    void DrawSublayers() const;

    Sketch& sketch_;
    const QRectF room_;
    const std::vector<DrawnClay> clay_;
    const double sublayer_;
    bool rectangular_, circular_, point_, placed_;
    DrawnLength a_, b_, x_, y_, z_;
    std::vector<DrawnLength> thick_;
    double scale_ = 1;
};

}  // namespace lithmark
