#include "kernels/raft/ThinClay.h"

#include <cmath>

#include "base/NumberText.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

// The imbalance of the moments, in the unit of a moment per initial stress, as a function of one exponent.
class Imbalance {
  public:
    // distances: u or v; columnSums: sums over r of weight(r) distance(r) K(r, c).
    Imbalance(int n, const Matrix<Single>& stiffness, const Array<Single>& distances, const Array<Single>& weight,
              std::span<const Single> columnSums, double moment, double s0, double d0)
        : n_(n), distances_(distances), columnSums_(columnSums) {
        for (int c = 1; c <= n; ++c)
            for (int r = 1; r <= n; ++r) constant_ += distances(r) * stiffness(r, c) * weight(r);
        constant_ += Quotient(moment, s0);
        constant_ = Quotient(constant_, Quotient(d0, s0) + 1);
    }

    Single operator()(double exponent) const {
        Single e = constant_;
        for (int c = 1; c <= n_; ++c) e -= columnSums_[static_cast<std::size_t>(c - 1)] * Exp(distances_(c) * exponent);
        return e;
    }

  private:
    int n_;
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
        if (count == kMostSteps) {
            Notices().Raise(NoticeId::IterationEnd, 907012_text, {NumberToText(kMostSteps)});
            return exponent;
        }
    }
}

}  // namespace

ThinClayTilt SearchThinClayTilt(const RaftEquilibrium& equilibrium, int n, const Matrix<Single>& stiffness,
                                const Array<Single>& u, const Array<Single>& v, const Array<Single>& weight,
                                const RaftLoad& load, Single s0, Single d0, double tolerance) {
    ThinClayTilt tilt;
    // Deliberately one count for both searches: after a first search that used it up, the second one ends by its
    // tolerance or by the overflow of the count. Kept: existing results rely on it.
    Integer count = 0;
    if (TiltsAlongX(equilibrium.Case())) {
        const Imbalance alongX(n, stiffness, u, weight, equilibrium.ColumnSums().Row(3), load.MomX, s0, d0);
        tilt.a = SearchExponent(alongX, tolerance, count);
    }
    if (TiltsAlongY(equilibrium.Case())) {
        const Imbalance alongY(n, stiffness, v, weight, equilibrium.ColumnSums().Row(2), load.MomY, s0, d0);
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
