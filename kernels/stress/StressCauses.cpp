// Why a run of the problems 1 to 3 failed.
#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/stress/SoilStressReport.h"
#include "report/Causes.h"

namespace lithmark {

std::string CauseInStress(const SoilStressInput& in) {
    const bool circle = in.LoadType == LoadShape::Circle;
    const std::string modulus = QuantityName(90003_text), ratio = QuantityName(90004_text);
    return FirstCause(
        {IfZero(modulus, in.Es), When(in.Nue <= -1, IfOutside(ratio, in.Nue, 0, 0.5)),
         IfNegative(QuantityName(Axis::Z), in.z), When(circle, IfNotPositive(QuantityName(400120_text), in.A)),
         When(circle, IfNotPositive(QuantityName(400149_text), Session.PrefND)), IfHuge(QuantityName(Axis::X), in.x),
         IfHuge(QuantityName(Axis::Y), in.y), IfHuge(QuantityName(Axis::Z), in.z),
         When(in.LoadType == LoadShape::Point, IfHuge(QuantityName(400186_text), in.Q)),
         When(in.LoadType != LoadShape::Point, IfHuge(QuantityName(400170_text), in.P)),
         IfHuge(QuantityName(circle ? 400120_text : 400001_text), in.A), IfHuge(QuantityName(101_text), in.B),
         IfHuge(ratio, in.Nue)});
}

}  // namespace lithmark
