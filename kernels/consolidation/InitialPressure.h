// The initial excess pore water pressure at a depth of the calculated vertical.
#pragma once

#include "base/Single.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "kernels/elastic/CircleMesh.h"
#include "kernels/elastic/RectangularLoad.h"

namespace lithmark {

// A constant, or the vertical stress of the surface load at once taken by the pore water, kN/m2. What the load needs is
// prepared once for all depths.
class InitialPressure {
  public:
    // Fails as BuildCircleMesh does, with Session.PrefND divisions of the diameter.
    explicit InitialPressure(const ConsolidationRateInput& in);

    // At the depth d, m. Under a point load a depth of exactly 0 becomes 1e-10, also for the caller, who goes on from
    // there. DivisionByZero for a rectangle at depth 0. 0 for a load type outside 1 to 3.
    Single At(Single& d) const;

  private:
    const ConsolidationRateInput& in_;
    SubRectangles rectangles_{};
    CircleMesh mesh_;
};

}  // namespace lithmark
