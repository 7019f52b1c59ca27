// Why a run of the problems 4 and 5 failed.
#include <algorithm>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/consolidation/ConsolidationInput.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "report/Causes.h"

namespace lithmark {

namespace {

// What both problems take of a load and a point.
std::string CauseInLoad(int loadType, Single x, Single y, Single z, Single Q, Single P, Single A, Single B) {
    const bool circle = loadType == LoadShape::Circle, rectangle = loadType == LoadShape::Rectangle;
    const std::string side = QuantityName(circle ? 400120_text : 400001_text);
    return FirstCause({IfNegative(QuantityName(Axis::Z), z), When(circle, IfNotPositive(side, A)),
                       When(circle, IfNotPositive(QuantityName(400149_text), Session.PrefND)),
                       IfHuge(QuantityName(Axis::X), x), IfHuge(QuantityName(Axis::Y), y),
                       IfHuge(QuantityName(Axis::Z), z),
                       When(loadType == LoadShape::Point, IfHuge(QuantityName(400186_text), Q)),
                       When(loadType != LoadShape::Point, IfHuge(QuantityName(400170_text), P)),
                       When(circle || rectangle, IfHuge(side, A)), When(rectangle, IfHuge(QuantityName(101_text), B))});
}

std::string CauseInLayer(const ConsolidationRateInput& in, int i) {
    const std::string thickness = QuantityName(40052_text, i), step = QuantityName(400148_text);
    return FirstCause({IfNotPositive(thickness, in.hLayer(i)),
                       IfBelow(thickness, in.hLayer(i), step, Session.PrefDz / 2), IfHuge(thickness, in.hLayer(i)),
                       IfNegative(QuantityName(10243_text, i), in.CvLayer(i)),
                       IfHuge(QuantityName(10243_text, i), in.CvLayer(i)),
                       When(in.NumLayers > 1, IfZero(QuantityName(10242_text, i), in.KLayer(i))),
                       IfHuge(QuantityName(10242_text, i), in.KLayer(i))});
}

// The nodes are counted in 16 bits.
std::string CauseInNodes(const ConsolidationRateInput& in) {
    constexpr double kMostNodes = 32766;
    const bool second = in.NumLayers > 1;
    const double thickness = in.hLayer(1) + (second ? double{in.hLayer(2)} : 0.0);
    if (Session.PrefDz <= 0 || thickness / Session.PrefDz <= kMostNodes) return {};
    const int thicker = second && in.hLayer(2) > in.hLayer(1) ? 2 : 1;
    return Text(909103_text, {{"|1", QuantityName(40052_text, thicker)}});
}

}  // namespace

std::string CauseInConsolidation(const ConsolidationInput& in) {
    const bool index = in.SoilPropertyType == SoilDefinition::ByCompressionIndex;
    const std::string thickness = QuantityName(40052_text), step = QuantityName(400148_text);
    return FirstCause({When(!index, IfZero(QuantityName(90003_text), in.Es)), IfNotPositive(thickness, in.h),
                       When(index, IfNotPositive(step, Session.PrefDz)),
                       When(index, IfBelow(thickness, in.h, step, Session.PrefDz / 2)),
                       When(index && in.eo <= -1, IfNegative(QuantityName(10175_text), in.eo)),
                       When(index && in.Gamma == 0, IfZero(QuantityName(120001_text), in.Po)),
                       When(index, IfNegative(QuantityName(120001_text), in.Po)),
                       When(index, IfNegative(QuantityName(10244_text), in.Gamma)),
                       When(index, IfNegative(QuantityName(400170_text), in.P)), IfHuge(thickness, in.h),
                       IfHuge(QuantityName(300004_text), in.Cc), IfHuge(QuantityName(10175_text), in.eo),
                       IfHuge(QuantityName(120001_text), in.Po), IfHuge(QuantityName(10244_text), in.Gamma),
                       CauseInLoad(in.LoadType, in.x, in.y, in.z, in.Q, in.P, in.A, in.B)});
}

std::string CauseInConsolidationRate(const ConsolidationRateInput& in) {
    const std::string coefficient = QuantityName(10243_text);
    const bool second = in.NumLayers > 1;
    const double greatest = second ? std::max<double>(in.CvLayer(1), in.CvLayer(2)) : double{in.CvLayer(1)};
    // The initial pressure comes first in a run; a rectangle's has no value at the surface.
    const bool rectangle = !in.Pressure && in.LoadType == LoadShape::Rectangle;
    return FirstCause(
        {When(rectangle, IfNotPositive(QuantityName(400001_text), in.A)),
         When(rectangle, IfNotPositive(QuantityName(101_text), in.B)),
         When(rectangle, IfNotPositive(QuantityName(Axis::Z), in.z)), CauseInLayer(in, 1),
         When(second, second ? CauseInLayer(in, 2) : std::string()),
         // Behind the layers: a run makes the step fit them.
         IfNotPositive(QuantityName(400148_text), Session.PrefDz), CauseInNodes(in),
         IfNotPositive(coefficient, greatest), IfNegative(QuantityName(300007_text), in.T),
         IfHuge(QuantityName(300007_text), in.T), When(in.Pressure, IfZero(QuantityName(300008_text), in.U)),
         When(in.Pressure, IfHuge(QuantityName(300008_text), in.U)),
         When(!in.Pressure, IfZero(QuantityName(in.LoadType == LoadShape::Point ? 400186_text : 400170_text),
                                   in.LoadType == LoadShape::Point ? in.Q : in.P)),
         When(!in.Pressure, CauseInLoad(in.LoadType, in.x, in.y, in.z, in.Q, in.P, in.A, in.B))});
}

}  // namespace lithmark
