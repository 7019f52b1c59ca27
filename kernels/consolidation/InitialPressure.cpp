#include "kernels/consolidation/InitialPressure.h"

#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/CircularLoad.h"
#include "kernels/elastic/PointLoad.h"

namespace lithmark {

InitialPressure::InitialPressure(const ConsolidationRateInput& in) : in_(in) {
    if (in.Pressure) return;
    if (in.LoadType == LoadShape::Rectangle) rectangles_ = SplitRectangle(in.x, in.y, in.A, in.B);
    if (in.LoadType == LoadShape::Circle) mesh_ = BuildCircleMesh(Session.A0, Session.PrefND);
}

Single InitialPressure::At(Single& d) const {
    if (in_.Pressure) return in_.U;
    switch (in_.LoadType) {
        case LoadShape::Point: {
            if (d == 0) d = 1e-10;
            const Single R = std::sqrt(Square(d) + (Square(in_.y) + Square(in_.x)));
            return 3 * in_.Q * Quotient(Cube(d), FifthPower(R)) / (2 * PI);
        }
        case LoadShape::Rectangle:
            return RectangleSigmaZSum(rectangles_, d) * in_.P / (2 * PI);
        case LoadShape::Circle:
            return CircleSigmaZ(mesh_, in_.x, in_.y, d, in_.P);
        default:
            return 0;
    }
}

}  // namespace lithmark
