#include "kernels/raft/ClayLayer.h"

#include <cmath>

#include "base/NumberText.h"
#include "core/Problems.h"
#include "kernels/raft/Conditioning.h"
#include "report/Measured.h"
#include "report/Notices.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Fills SubStress: each sublayer's middle lies one step deeper than that of the one above.
void StressSublayers(ClayLayer& clay, Single gamma, Single topStress) {
    clay.SubStress.Redim(1, clay.M);
    clay.SubStress(1) = clay.DepthStep * gamma / 2 + topStress;
    for (int k = 2; k <= clay.M; ++k) clay.SubStress(k) = clay.DepthStep * gamma + clay.SubStress(k - 1);
}

}  // namespace

Single CompressionRatio(const RaftInput& input) {
    return Quotient(input.Cc, 1 + input.eo);
}

Single LayerFactorOf(const RaftInput& input, Single depthStep) {
    return Quotient(depthStep * input.Cc, 1 + input.eo) / std::log(10.0);
}

ClayLayer NumericalClay(const RaftInput& input, Single depthStep) {
    ClayLayer clay;
    clay.C = CompressionRatio(input);
    if (input.h < depthStep) {
        clay.S0 = input.Gamma * input.h / 2 + input.Po;
        return clay;
    }
    clay.Thick = true;
    clay.M = Integer::Rounded(-std::floor(-Quotient(input.h, depthStep)));
    clay.DepthStep = Quotient(input.h, clay.M);
    clay.LayerFactor = LayerFactorOf(input, clay.DepthStep);
    StressSublayers(clay, input.Gamma, input.Po);
    return clay;
}

ClayLayer AnalyticalClay(const RaftInput& input, Single depthStep) {
    ClayLayer clay;
    clay.C = CompressionRatio(input);
    clay.Thick = true;
    clay.M = Integer::Rounded(Quotient(input.h, depthStep));
    clay.DepthStep = depthStep;
    clay.LayerFactor = LayerFactorOf(input, depthStep);
    StressSublayers(clay, input.Gamma, 0);
    return clay;
}

double LogStressRatio(double initial, double increase) {
    return Ln(Quotient(initial + increase, initial));
}

ClayColumn::ClayColumn(Single depthStep, Single gamma, Single layerFactor)
    : depthStep_(depthStep), gamma_(gamma), layerFactor_(layerFactor), initial_(depthStep * gamma / 2) {}

void ClayColumn::Add(Single meanIncrease) {
    zTop_ += depthStep_;
    s_ += layerFactor_ * LogStressRatio(initial_, meanIncrease) * 100;
    initial_ += depthStep_ * gamma_;
}

namespace {

// Where the tolerance is below the last digit of the settlement the search ends by that digit.
void TellLostTolerance(const ClayColumn& column, double tolerance) {
    if (tolerance >= std::abs(column.Settlement()) * kLastBit) return;
    MeasureRun([&] {
        Notices().Raise(NoticeId::RaftLimitingDepth, 907013_text,
                        {NumberToText(tolerance), MeasuredLength(column.Top())});
    });
}

}  // namespace

Single SearchLimitingDepth(ClayColumn& column, double tolerance, const MeanStress& meanStress) {
    if (!(tolerance > 0)) {
        Notices().Raise(NoticeId::RaftLimitingDepth, 907008_text, {NumberToText(tolerance)});
        Fail(FailureKind::DivisionByZero);
    }
    Single previous;
    for (long steps = 1;; ++steps) {
        column.Add(meanStress(column.Top(), column.Bottom()));
        if (std::abs(previous - column.Settlement()) < tolerance) {
            TellLostTolerance(column, tolerance);
            return column.Top();
        }
        previous = column.Settlement();
        // How deep it goes is not known.
        if (steps % 64 == 0) SharedServices().ReportProgress(0.5 * steps / (steps + 1000.0));
    }
}

void SettleToDepth(ClayColumn& column, Single limitingDepth, const MeanStress& meanStress) {
    do column.Add(meanStress(column.Top(), column.Bottom()));
    while (column.Top() != limitingDepth);
}

Single FlexibleClaySettlement(const RaftInput& input, const ClayLayer& clay, const MeanStress& meanStress) {
    if (input.SoilPropertyType == SoilDefinition::ByCompressionIndex && clay.Thick) {
        Single s;
        for (int k = 1; k <= clay.M; ++k) {
            const Single z1 = SublayerTop(input, clay, k);
            const Single d = meanStress(z1, z1 + clay.DepthStep);
            s += clay.LayerFactor * LogStressRatio(clay.SubStress(k), d) * 100;
        }
        return s;
    }
    const Single d = meanStress(input.z, input.z + input.h);
    if (input.SoilPropertyType == SoilDefinition::ByCompressionIndex)
        return clay.C * LogStressRatio(clay.S0, d) * input.h * 100 / std::log(10.0);
    return Quotient(d * input.h * 100, input.Es);
}

}  // namespace lithmark
