#include "kernels/consolidation/ConsolidationNotices.h"

#include <algorithm>
#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/CircleIntegral.h"
#include "report/Measured.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

constexpr double kGreatestStepNumber = 0.5;  // of a stable explicit march
constexpr double kFewestSteps = 6;
constexpr double kRoundings = 1e-5;  // of 32-bit pressures over many steps, relative to the greatest

// The settlement [cm] with the stress of the circle integrated instead of summed over nodes.
double IntegratedSettlement(const ConsolidationInput& in) {
    const double r = std::hypot(in.x, in.y);
    const auto increase = [&](double z1, double z2) {
        return in.P * CircleIntegral(
                          Session.A0, r, [&](double rho) { return DiscMeanStress(rho, z1, z2); }, 200);
    };
    if (in.SoilPropertyType == SoilDefinition::ByModulus)
        return Quotient(increase(in.z, in.z + in.h) * in.h * 100, in.Es);
    const double n = RoundHalfEven(Quotient(in.h, Session.PrefDz)), dz = Quotient(in.h, n);
    double s = 0;
    for (int i = 0; i < n; ++i) {
        const double z1 = in.z + i * dz, before = in.Po + in.Gamma * (i + 0.5) * dz;
        s += Quotient(dz * in.Cc, 1 + in.eo) * std::log10(Quotient(before + increase(z1, z1 + dz), before)) * 100;
    }
    return s;
}

void MeasureCircle(const ConsolidationInput& in) {
    if (in.LoadType != LoadShape::Circle || (in.x == 0 && in.y == 0) || in.z >= Session.A0) return;
    if (in.SoilPropertyType != SoilDefinition::ByModulus && in.SoilPropertyType != SoilDefinition::ByCompressionIndex)
        return;
    Notices().Raise(NoticeId::CircleMeanStress, 907029_text,
                    {MeasuredLength(in.z), MeasuredLength(Session.A0), MeasuredSettlement(Session.s),
                     MeasuredSettlement(IntegratedSettlement(in))});
}

void MeasureRange() {
    const auto [least, greatest] = std::minmax_element(Session.IsoUf.begin(), Session.IsoUf.end());
    const double initial = *std::max_element(Session.IsoU0.begin(), Session.IsoU0.end());
    const double noise = kRoundings * std::abs(initial);
    if (*least >= -noise && *greatest <= initial + noise) return;
    Notices().Raise(NoticeId::MarchRange, 907020_text,
                    {MeasuredPressure(*least), MeasuredPressure(*greatest), MeasuredPressure(initial)});
}

void MeasureSteps(Single steps) {
    if (steps >= kFewestSteps) return;
    const bool nothingMarched = steps == 0 || steps == 1;
    Notices().Raise(NoticeId::MarchFewSteps, nothingMarched ? 907022_text : 907021_text,
                    {MeasuredNumber(steps), MeasuredPercent(Session.Uc / 100)});
}

// Mean initial pressures over the layers: what the run took, and the stress of the load at the nodes' own depths.
void MeasureCirclePressure(const ConsolidationRateInput& in, const Array<Single>& depth, const Array<double>& weight) {
    const double r = std::hypot(in.x, in.y);
    double taken = 0, load = 0, height = 0;
    for (int m = 0; m <= Session.IsoLast; ++m) {
        const double d = depth(m);
        taken += Session.IsoU0(m) * weight(m);
        load += in.P * CircleIntegral(Session.A0, r, [d](double rho) { return DiscStress(rho, d); }) * weight(m);
        height += weight(m);
    }
    Notices().Raise(NoticeId::MarchCirclePressure, 907023_text,
                    {MeasuredPressure(Quotient(taken, height)), MeasuredPressure(Quotient(load, height))});
}

}  // namespace

void RaiseConsolidationNotices(const ConsolidationInput& in) {
    MeasureRun([&] { MeasureCircle(in); });
}

void RaiseStepNotices(const Array<Single>& lambda) {
    for (int i = 1; i <= lambda.Upper(); ++i)
        if (lambda(i) > kGreatestStepNumber)
            MeasureRun([&] {
                Notices().Raise(NoticeId::MarchUnstable, 907019_text,
                                {MeasuredNumber(i), MeasuredNumber(lambda(i)), MeasuredNumber(kGreatestStepNumber)});
            });
}

void RaiseMarchNotices(const ConsolidationRateInput& in, Single steps, const Array<Single>& depth,
                       const Array<double>& weight) {
    MeasureRun([] { MeasureRange(); });
    MeasureRun([&] { MeasureSteps(steps); });
    if (!in.Pressure && in.LoadType == LoadShape::Circle) MeasureRun([&] { MeasureCirclePressure(in, depth, weight); });
}

}  // namespace lithmark
