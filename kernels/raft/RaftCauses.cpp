// Why a run of the problems 9 and 10 failed.
#include <cmath>

#include "base/NumberText.h"
#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/raft/RaftRun.h"
#include "report/Causes.h"

namespace lithmark {

namespace {

bool IsClayByIndex(const RaftInput& in) {
    return Session.ProblemType == Problem::RaftConsolidation &&
           in.SoilPropertyType == SoilDefinition::ByCompressionIndex;
}

std::string CauseInClay(const RaftInput& in) {
    const std::string ratio = QuantityName(10175_text), weight = QuantityName(10244_text);
    const std::string index = QuantityName(300004_text), pressure = QuantityName(120001_text);
    return FirstCause({When(in.eo <= -1, IfNegative(ratio, in.eo)), IfZero(index, in.Cc), IfNegative(index, in.Cc),
                       When(in.AnalysisType, IfNotPositive(weight, in.Gamma)),
                       When(!in.AnalysisType && in.Gamma == 0, IfZero(pressure, in.Po)), IfNegative(weight, in.Gamma),
                       IfNegative(pressure, in.Po), IfZero(QuantityName(400186_text), in.Q), IfExtreme(ratio, in.eo),
                       IfExtreme(index, in.Cc), IfExtreme(weight, in.Gamma), IfExtreme(pressure, in.Po)});
}

// The nodes of a rectangle, by the element sizes as they were entered.
std::string CauseInNodes(const RaftInput& in, double dx, double dy) {
    const bool sizes = dx != 0 && dy != 0;
    const double nodes = sizes ? (std::abs(in.A / dx) + 1) * (std::abs(in.B / dy) + 1) : 0;
    const bool along = sizes && std::abs(in.A / dx) > std::abs(in.B / dy);
    return IfUncountable(QuantityName(along ? 400001_text : 101_text), nodes);
}

std::string CauseInSides(const RaftInput& in, double dx, double dy) {
    const std::string length = QuantityName(400001_text), width = QuantityName(101_text);
    const std::string sizeX = QuantityName(400131_text), sizeY = QuantityName(400132_text);
    return FirstCause({IfNotPositive(length, in.A), IfNotPositive(width, in.B), IfNotPositive(sizeX, dx),
                       IfNotPositive(sizeY, dy), IfBelow(length, in.A, sizeX, dx / 2),
                       IfBelow(width, in.B, sizeY, dy / 2), CauseInNodes(in, dx, dy), IfExtreme(length, in.A),
                       IfExtreme(width, in.B)});
}

std::string CauseInCircle(const RaftInput& in) {
    const std::string radius = QuantityName(400120_text), divisions = QuantityName(400149_text);
    return FirstCause({IfNotPositive(radius, in.A), IfNotPositive(divisions, Session.PrefND),
                       IfUncountable(divisions, Square(Session.PrefND) + 1), IfExtreme(radius, in.A)});
}

}  // namespace

std::string CauseInRaft(const RaftInput& in, double dx, double dy) {
    const bool clay = IsClayByIndex(in), elastic = Session.ProblemType == Problem::RaftDisplacement;
    const bool circle = Session.LoadType == LoadShape::Circle;
    const std::string thickness = QuantityName(40052_text), modulus = QuantityName(90003_text);
    const std::string eccentricity = QuantityName(300076_text);
    // An analytical raft on an elastic layer uses no thickness.
    const bool layer = !elastic || !in.AnalysisType;
    return FirstCause(
        {circle ? CauseInCircle(in) : CauseInSides(in, dx, dy), When(!clay, IfZero(modulus, in.Es)),
         When(layer, IfNotPositive(thickness, in.h)), When(clay, CauseInClay(in)),
         When(!elastic, IfNegative(QuantityName(Axis::Z), in.z)),
         When(elastic, IfOutside(QuantityName(90004_text), Session.Nue, 0, 0.5)), IfExtreme(thickness, in.h),
         IfExtreme(QuantityName(400186_text), in.Q), IfExtreme(QuantityName(Axis::Z), in.z),
         When(circle && clay, IfNegative(eccentricity, in.Exz_x)), IfExtreme(eccentricity, in.Exz_x),
         IfExtreme(eccentricity, in.Exz_y), When(!clay, IfExtreme(modulus, in.Es)),
         IfNoLength(QuantityName(circle ? 400120_text : 400001_text), in.A),
         When(!circle, IfNoLength(QuantityName(101_text), in.B)), When(layer, IfNoLength(thickness, in.h)),
         IfFar(QuantityName(Axis::Z), in.z), When(circle, IfOdd(QuantityName(400149_text), Session.PrefND))});
}

}  // namespace lithmark
