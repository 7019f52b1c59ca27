// Why a run of the problems 1 to 3 failed.
#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/stress/SoilStressReport.h"
#include "report/Causes.h"

namespace lithmark {

std::string CauseInStress(const SoilStressInput& in) {
    const bool circle = in.LoadType == LoadShape::Circle;
    const std::string modulus = QuantityName(90003_text), ratio = QuantityName(90004_text);
    const std::string divisions = QuantityName(400149_text);
    return FirstCause(
        {IfZero(modulus, in.Es), When(in.Nue <= -1, IfOutside(ratio, in.Nue, 0, 0.5)),
         IfNegative(QuantityName(Axis::Z), in.z), When(circle, IfNotPositive(QuantityName(400120_text), in.A)),
         When(circle, FirstCause({IfNotPositive(divisions, Session.PrefND),
                                  IfUncountable(divisions, Square(Session.PrefND) + 1)})),
         IfExtreme(modulus, in.Es), IfExtreme(QuantityName(Axis::X), in.x), IfExtreme(QuantityName(Axis::Y), in.y),
         IfExtreme(QuantityName(Axis::Z), in.z),
         When(in.LoadType == LoadShape::Point, IfExtreme(QuantityName(400186_text), in.Q)),
         When(in.LoadType != LoadShape::Point, IfExtreme(QuantityName(400170_text), in.P)),
         IfExtreme(QuantityName(circle ? 400120_text : 400001_text), in.A), IfExtreme(QuantityName(101_text), in.B),
         IfExtreme(ratio, in.Nue), IfFar(QuantityName(Axis::X), in.x), IfFar(QuantityName(Axis::Y), in.y),
         IfFar(QuantityName(Axis::Z), in.z), IfNoLength(QuantityName(circle ? 400120_text : 400001_text), in.A),
         IfNoLength(QuantityName(101_text), in.B)});
}

}  // namespace lithmark
