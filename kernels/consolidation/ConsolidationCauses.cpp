// Why a run of the problems 4 and 5 failed.
#include <algorithm>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/consolidation/ConsolidationInput.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "report/Causes.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

// What both problems take of a load and a point.
std::string CauseInLoad(int loadType, Single x, Single y, Single z, Single Q, Single P, Single A, Single B) {
    const bool circle = loadType == LoadShape::Circle, rectangle = loadType == LoadShape::Rectangle;
    const std::string side = QuantityName(circle ? 400120_text : 400001_text), divisions = QuantityName(400149_text);
    return FirstCause(
        {IfNegative(QuantityName(Axis::Z), z), When(circle, IfNotPositive(side, A)),
         When(circle, FirstCause({IfNotPositive(divisions, Session.PrefND),
                                  IfUncountable(divisions, Square(Session.PrefND) + 1)})),
         IfExtreme(QuantityName(Axis::X), x), IfExtreme(QuantityName(Axis::Y), y), IfExtreme(QuantityName(Axis::Z), z),
         When(loadType == LoadShape::Point, IfExtreme(QuantityName(400186_text), Q)),
         When(loadType != LoadShape::Point, IfExtreme(QuantityName(400170_text), P)),
         When(circle || rectangle, IfExtreme(side, A)), When(rectangle, IfExtreme(QuantityName(101_text), B)),
         IfFar(QuantityName(Axis::X), x), IfFar(QuantityName(Axis::Y), y), IfFar(QuantityName(Axis::Z), z),
         When(circle || rectangle, IfNoLength(side, A)), When(rectangle, IfNoLength(QuantityName(101_text), B))});
}

std::string CauseInLayer(const ConsolidationRateInput& in, int i) {
    const std::string thickness = QuantityName(40052_text, i), step = QuantityName(400148_text);
    return FirstCause({IfNotPositive(thickness, in.hLayer(i)),
                       IfBelow(thickness, in.hLayer(i), step, Session.PrefDz / 2), IfExtreme(thickness, in.hLayer(i)),
                       IfNegative(QuantityName(10243_text, i), in.CvLayer(i)),
                       IfExtreme(QuantityName(10243_text, i), in.CvLayer(i)),
                       When(in.NumLayers > 1, IfZero(QuantityName(10242_text, i), in.KLayer(i))),
                       IfExtreme(QuantityName(10242_text, i), in.KLayer(i))});
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

// A march whose pressures grow beyond all measure has too large a step for one of its layers: the one that drains best.
std::string CauseInMarch(const ConsolidationRateInput& in) {
    if (!Notices().Holds(NoticeId::MarchUnstable)) return {};
    const auto drains = [&](int i) { return in.CvLayer(i) / Square(in.hLayer(i)); };
    const int layer = in.NumLayers > 1 && drains(2) > drains(1) ? 2 : 1;
    return Text(909600_text, {{"|1", QuantityName(40052_text, layer)}});
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
                       When(index, IfNegative(QuantityName(400170_text), in.P)), IfExtreme(thickness, in.h),
                       IfExtreme(QuantityName(300004_text), in.Cc), IfExtreme(QuantityName(10175_text), in.eo),
                       IfExtreme(QuantityName(120001_text), in.Po), IfExtreme(QuantityName(10244_text), in.Gamma),
                       When(!index, IfExtreme(QuantityName(90003_text), in.Es)),
                       CauseInLoad(in.LoadType, in.x, in.y, in.z, in.Q, in.P, in.A, in.B),
                       IfNoLength(thickness, in.h)});
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
         IfExtreme(QuantityName(300007_text), in.T), When(in.Pressure, IfZero(QuantityName(300008_text), in.U)),
         When(in.Pressure, IfExtreme(QuantityName(300008_text), in.U)),
         When(!in.Pressure, IfZero(QuantityName(in.LoadType == LoadShape::Point ? 400186_text : 400170_text),
                                   in.LoadType == LoadShape::Point ? in.Q : in.P)),
         When(!in.Pressure, CauseInLoad(in.LoadType, in.x, in.y, in.z, in.Q, in.P, in.A, in.B)), CauseInMarch(in)});
}

}  // namespace lithmark
