#include "kernels/raft/ThinClay.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "base/NumberText.h"
#include "kernels/raft/RaftProgress.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

// Sum over c and, inside it, r of distances(r) K(r, c) weight(r). The matrix is read as it lies in memory, some columns
// at a time.
Single UnitMoment(int n, const Matrix<Single>& stiffness, const Array<Single>& distances, const Array<Single>& weight,
                  const std::function<void(double)>& progress) {
    constexpr int kColumns = 64;
    std::vector<double> terms(static_cast<std::size_t>(n) * kColumns);
    Single sum;
    for (int c = 0; c < n; c += kColumns) {
        const int columns = std::min(kColumns, n - c);
        for (int r = 1; r <= n; ++r) {
            const auto row = stiffness.Row(r);
            for (int k = 0; k < columns; ++k)
                terms[static_cast<std::size_t>(k) * static_cast<std::size_t>(n) + static_cast<std::size_t>(r - 1)] =
                    distances(r) * row[static_cast<std::size_t>(c) + static_cast<std::size_t>(k)] * weight(r);
        }
        for (std::size_t i = 0; i < static_cast<std::size_t>(columns) * static_cast<std::size_t>(n); ++i)
            sum += terms[i];
        progress(static_cast<double>(c) / n);
    }
    return sum;
}

// The imbalance of the moments, in the unit of a moment per initial stress, as a function of one exponent.
class Imbalance {
  public:
    // distances: u or v; columnSums: sums over r of weight(r) distance(r) K(r, c); unitMoment: that of UnitMoments.
    Imbalance(const Array<Single>& distances, std::span<const Single> columnSums, Single unitMoment, double moment,
              double s0, double d0)
        : distances_(distances), columnSums_(columnSums), constant_(unitMoment) {
        constant_ += Quotient(moment, s0);
        constant_ = Quotient(constant_, Quotient(d0, s0) + 1);
    }

    Single operator()(double exponent) const {
        Single e = constant_;
        for (std::size_t c = 0; c < columnSums_.size(); ++c)
            e -= columnSums_[c] * Exp(distances_(static_cast<int>(c) + 1) * exponent);
        return e;
    }

  private:
    const Array<Single>& distances_;
    std::span<const Single> columnSums_;
    Single constant_;
};

constexpr int kMostSteps = 1000;

Single SearchExponent(const Imbalance& imbalance, double tolerance, Integer& count) {
    Single exponent, step = 0.001;
    for (;;) {
        const Single e = imbalance(exponent);
        if (std::abs(e) <= tolerance) return exponent;
        if (e < 0) {
            exponent -= step;
            step *= 0.5;
        }
        exponent += step;
        ++count;
        SharedServices().ReportProgress(kSettled);
        if (count == kMostSteps) {
            Notices().Raise(NoticeId::IterationEnd, 907012_text, {NumberToText(kMostSteps)});
            return exponent;
        }
    }
}

}  // namespace

UnitMoments SumUnitMoments(LoadCase k, int n, const Matrix<Single>& stiffness, const Array<Single>& u,
                           const Array<Single>& v, const Array<Single>& weight) {
    UnitMoments moments;
    constexpr double kHalf = (kEquilibriumDone + kSettled) / 2;
    if (TiltsAlongX(k)) moments.AlongX = UnitMoment(n, stiffness, u, weight, ProgressBetween(kEquilibriumDone, kHalf));
    if (TiltsAlongY(k)) moments.AlongY = UnitMoment(n, stiffness, v, weight, ProgressBetween(kHalf, kSettled));
    return moments;
}

ThinClayTilt SearchThinClayTilt(const RaftEquilibrium& equilibrium, const UnitMoments& moments, const Array<Single>& u,
                                const Array<Single>& v, const RaftLoad& load, Single s0, Single d0, double tolerance) {
    ThinClayTilt tilt;
    // Deliberate: one count for both searches bounds them together; after a first search that used it up, the second
    // one ends by its tolerance or by the overflow of the count.
    Integer count = 0;
    if (TiltsAlongX(equilibrium.Case())) {
        const Imbalance alongX(u, equilibrium.ColumnSums().Row(3), moments.AlongX, load.MomX, s0, d0);
        tilt.a = SearchExponent(alongX, tolerance, count);
    }
    if (TiltsAlongY(equilibrium.Case())) {
        const Imbalance alongY(v, equilibrium.ColumnSums().Row(2), moments.AlongY, load.MomY, s0, d0);
        tilt.b = SearchExponent(alongY, tolerance, count);
    }
    return tilt;
}

RaftPlane ThinClayPlane(const RaftInput& input, const ClayLayer& clay, Single d0, const ThinClayTilt& tilt) {
    const double ln10 = std::log(10.0);
    const double divisor = (1 + input.eo) * ln10;
    RaftPlane plane;
    plane.c0 = clay.C * LogStressRatio(clay.S0, d0) * input.h / ln10;
    plane.cx = Quotient(input.Cc * input.h * tilt.a, divisor);
    plane.cy = Quotient(input.Cc * input.h * tilt.b, divisor);
    return plane;
}

Single ThinClayIncrease(Single s0, Single d0, const ThinClayTilt& tilt, Single u, Single v) {
    return s0 * ((Quotient(d0, s0) + 1) * Exp(u * tilt.a + v * tilt.b) - 1);
}

}  // namespace lithmark
