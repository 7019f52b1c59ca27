// Degree of consolidation against closed solutions.

#include <gtest/gtest.h>

#include <functional>
#include <numbers>
#include <vector>

#include "RateCase.h"

namespace lithmark::tests {
namespace {

class RateTheory : public testing::Test {
  protected:
    RateTheory() { FreshSession(); }
    void Run(const RateCase& c) {
        c.Run();
        ASSERT_FALSE(Session.CalcAborted);
    }
    ScriptedHost host;
};

// Terzaghi (1923): U = 1 - sum of 2/M^2 exp(-M^2 Tv), M = (2 m + 1) pi/2, per cent.
double TerzaghiDegree(double Tv) {
    double rest = 0;
    for (int m = 0; m < 200; ++m) {
        const double M = (2 * m + 1) * std::numbers::pi / 2;
        rest += 2 / (M * M) * std::exp(-M * M * Tv);
    }
    return (1 - rest) * 100;
}

// The isochrone of the same theory at the depth Z = z/H below the drained face, of u0 = 1.
double TerzaghiPressure(double Z, double Tv) {
    double u = 0;
    for (int m = 0; m < 200; ++m) {
        const double M = (2 * m + 1) * std::numbers::pi / 2;
        u += 2 / M * std::sin(M * Z) * std::exp(-M * M * Tv);
    }
    return u;
}

// The T in days that makes the time factor Tv for the drainage length H.
double TimeOf(const RateCase& c, double Tv, double H) {
    return Tv * H * H / (c.Cv(1) * kDay);
}

TEST_F(RateTheory, SeriesUsedHereAgreesWithPublishedValues) {
    // Taylor (1948), table of U against T: 50 % at 0.197, 90 % at 0.848.
    EXPECT_NEAR(TerzaghiDegree(0.197), 50, 0.05);
    EXPECT_NEAR(TerzaghiDegree(0.848), 90, 0.05);
}

// What 32 bits may lose in a run: the stored weights of a row add up to 1 within 2^-25, and the sums round as often.
double Rounding(double steps) {
    return 100 * steps * std::ldexp(1, -24);
}

double StepsOf(const RateCase& c) {
    return c.T / StepOf(c);
}

// 100 intervals over the drainage length. With lambda = 1/6 the scheme is of the fourth order inside; the start, with
// half the pressure at the drained face for one step, leaves some thousandths of a per cent.
constexpr double kScheme = 0.01;

TEST_F(RateTheory, OneLayerDrainedAtOneFaceFollowsTerzaghi) {
    RateCase c = StepCase(100, 2);
    for (const double Tv : {0.01, 0.05, 0.1, 0.2, 0.3, 0.5}) {
        c.T = TimeOf(c, Tv, 100);
        Run(c);
        const double tolerance = kScheme + Rounding(StepsOf(c));
        EXPECT_NEAR(Session.Uc, TerzaghiDegree(Tv), tolerance) << "Tv = " << Tv;
        for (int m = 0; m <= 100; ++m)
            EXPECT_NEAR(Session.IsoUf(m), 100 * TerzaghiPressure(m / 100.0, Tv), tolerance)
                << "Tv = " << Tv << " node " << m;
    }
}

TEST_F(RateTheory, OneLayerDrainedAtBothFacesFollowsTerzaghiWithHalfTheThickness) {
    RateCase c = StepCase(200, 1);
    for (const double Tv : {0.01, 0.05, 0.1, 0.2, 0.3, 0.5}) {
        c.T = TimeOf(c, Tv, 100);
        Run(c);
        const double tolerance = kScheme + Rounding(StepsOf(c));
        EXPECT_NEAR(Session.Uc, TerzaghiDegree(Tv), tolerance) << "Tv = " << Tv;
        for (int m = 0; m <= 200; ++m)
            EXPECT_NEAR(Session.IsoUf(m), 100 * TerzaghiPressure(m / 100.0, Tv), tolerance)
                << "Tv = " << Tv << " node " << m;
    }
}

// The same scheme in 64 bits tells its own error from that of the stored 32 bits: one layer of dz = 1 m drained at the
// top, with the initial pressures u0 at its nodes. The pressures after so many steps.
std::vector<double> WideScheme(const std::vector<double>& u0, bool bottomDrained, double steps) {
    const double lambda = 1.0 / 6;
    const std::size_t last = u0.size() - 1;
    const auto product = [&](const std::vector<double>& u) {
        std::vector<double> v(last + 1, 0);
        for (std::size_t m = 1; m < last; ++m) v[m] = lambda * (u[m - 1] + u[m + 1]) + (1 - 2 * lambda) * u[m];
        if (!bottomDrained) v[last] = 2 * lambda * u[last - 1] + (1 - 2 * lambda) * u[last];
        return v;
    };
    std::vector<double> cur = u0;
    cur[0] /= 2;
    if (bottomDrained) cur[last] /= 2;
    const int whole = static_cast<int>(steps);
    for (int k = 0; k < whole; ++k) cur = product(cur);
    const std::vector<double> next = product(cur);
    for (std::size_t m = 0; m <= last; ++m) cur[m] += (next[m] - cur[m]) * (steps - whole);
    return cur;
}

// Uc by the trapezoidal rule.
double WideDegree(const std::vector<double>& u0, const std::vector<double>& uf) {
    double S0 = 0, Sf = 0;
    for (std::size_t m = 0; m < u0.size(); ++m) {
        const double weight = m == 0 || m + 1 == u0.size() ? 0.5 : 1;
        S0 += u0[m] * weight;
        Sf += uf[m] * weight;
    }
    return (1 - Sf / S0) * 100;
}

TEST_F(RateTheory, DifferenceToTheSchemeIn64BitsIsRounding) {
    RateCase c = StepCase(100, 2);
    for (const int steps : {2, 600, 12000, 30000}) {
        c.T = StepOf(c) * steps;
        Run(c);
        const std::vector<double> wide = WideScheme(std::vector<double>(101, 100.0), false, steps);
        for (int m = 0; m <= 100; ++m)
            EXPECT_NEAR(Session.IsoUf(m), wide[static_cast<std::size_t>(m)], Rounding(steps + 2))
                << steps << " steps, node " << m;
        const double Tv = steps / 6.0e4;
        if (steps < 600) continue;
        for (int m = 0; m <= 100; ++m)
            EXPECT_NEAR(wide[static_cast<std::size_t>(m)], 100 * TerzaghiPressure(m / 100.0, Tv), kScheme)
                << steps << " steps, node " << m;
    }
}

// What thin layers cost: the least number of intervals, four over two drainage lengths, runs ahead of the theory.
TEST_F(RateTheory, FourIntervalsRunAheadOfTheTheoryByUpTo4Points) {
    RateCase c = StepCase(4, 1);
    for (const auto& [Tv, ahead] : {std::pair{0.1, 3.7}, {0.2, 2.6}, {0.5, 1.2}, {0.85, 0.5}}) {
        c.T = TimeOf(c, Tv, 2);
        Run(c);
        EXPECT_NEAR(Session.Uc - TerzaghiDegree(Tv), ahead, 0.05) << "Tv = " << Tv;
        const std::vector<double> u0(5, 100.0);
        EXPECT_NEAR(Session.Uc, WideDegree(u0, WideScheme(u0, true, StepsOf(c))), 1e-4);
    }
}

// dz2 = h2/4 and equal Cv: lambda2 = (1/6)/dz2^2 passes 1/2 at dz2 = 0.577 m. Beyond, pressures leave the range from 0
// to the initial one.
TEST_F(RateTheory, SecondLayerThinnerThan2m31UnderALayerOf4mIsUnstable) {
    RateCase c = StepCase(4, 2);
    c.NumLayers = 2;
    c.T = StepOf(c) * 200;
    const auto range = [] {
        double least = 0, most = 0;
        for (const Single& uf : Session.IsoUf) {
            least = std::min<double>(least, uf);
            most = std::max<double>(most, uf);
        }
        return std::pair{least, most};
    };
    c.h(2) = 2.4;
    Run(c);
    EXPECT_GE(range().first, 0);
    EXPECT_LE(range().second, 100);
    c.h(2) = 2.2;
    Run(c);
    EXPECT_LT(range().first, -1000);
    EXPECT_GT(range().second, 1000);
}

// What the circular load's numbering costs, against the same scheme with the pressures on the axis of the circle
// (Boussinesq 1885; Love 1929) at the nodes that they belong to: a = 2 m, layer of 4 m from 1 m on, dz = 1 m.
TEST_F(RateTheory, CircleRunsBehindTheSameLoadOnItsNodesByUpTo20PointsDeliberately) {
    std::vector<double> u0;
    for (int m = 0; m <= 4; ++m) u0.push_back(150 * (1 - std::pow(1 + 4 / ((1.0 + m) * (1 + m)), -1.5)));
    RateCase c;
    c.Pressure = false;
    c.LoadType = 3;
    for (const auto& [T, behind] : {std::pair{0.01, 19.0}, {0.02, 17.0}, {0.03, 13.0}, {0.1, 2.0}}) {
        c.T = T;
        Run(c);
        const double steps = T * c.Cv(1) * kYear * 6;
        EXPECT_NEAR(WideDegree(u0, WideScheme(u0, true, steps)) - Session.Uc, behind, 0.6) << "T = " << T;
    }
}

// 500 m, 500 intervals, up to 31 500 steps: the limit of steps reaches Tv = 0.021 here, U = 2 sqrt(Tv/pi)
// (Terzaghi 1943, for short times).
TEST_F(RateTheory, ThickLayerFollowsTheRootLawOfShortTimes) {
    RateCase c = StepCase(500, 2);
    for (const double Tv : {0.002, 0.01, 0.021}) {
        c.T = TimeOf(c, Tv, 500);
        Run(c);
        EXPECT_NEAR(Session.Uc, 100 * 2 * std::sqrt(Tv / std::numbers::pi), kScheme + Rounding(StepsOf(c)))
            << "Tv = " << Tv;
    }
}

// From 8 to 32 intervals the error falls by about 16, as of the second order; finer grids come to the 32 bits.
TEST_F(RateTheory, ErrorFallsWithTheSquareOfTheInterval) {
    double errors[2];
    const double thickness[2] = {8, 32};
    for (int k = 0; k < 2; ++k) {
        RateCase c = StepCase(thickness[k], 2);
        c.T = TimeOf(c, 0.2, thickness[k]);
        Run(c);
        errors[k] = Session.Uc - TerzaghiDegree(0.2);
    }
    EXPECT_LT(std::abs(errors[0]), 0.3);
    EXPECT_NEAR(errors[0] / errors[1], 16, 4);
}

TEST_F(RateTheory, DrainedAtBothFacesIsTwiceDrainedAtOneFace) {
    RateCase half = StepCase(30, 2), whole = StepCase(60, 1);
    half.T = whole.T = 60;
    Run(half);
    const std::vector<double> uf = NumbersOf(Session.IsoUf);
    const double Uc = Session.Uc;
    Run(whole);
    EXPECT_NEAR(Session.Uc, Uc, 1e-3);
    for (int m = 0; m <= 30; ++m) {
        EXPECT_NEAR(Session.IsoUf(m), uf[static_cast<std::size_t>(m)], 1e-3);
        EXPECT_NEAR(Session.IsoUf(60 - m), uf[static_cast<std::size_t>(m)], 1e-3);
    }
}

// Two layers (Gray 1945), top drained: u = sum of C Z(z) exp(-b^2 t) with Z = sin(b z/sqrt Cv1) in layer 1 and
// D g(b (H - z)/sqrt Cv2) in layer 2, g = sin for a drained and cos for an impermeable bottom. u and k du/dz are
// continuous at the interface, which gives b; the Z are orthogonal with the weight k/Cv.
class TwoLayers {
  public:
    TwoLayers(double h1, double h2, double Cv1, double Cv2, double k1, double k2, bool drained)
        : h1_(h1), h2_(h2), c1_(std::sqrt(Cv1)), c2_(std::sqrt(Cv2)), k1_(k1), k2_(k2), drained_(drained) {
        const double step = 1e-3 * std::numbers::pi / (h1 / c1_ + h2 / c2_);
        for (double b = step; roots_.size() < 120; b += step)
            if (Flow(b) * Flow(b + step) <= 0) roots_.push_back(Bisected(b, b + step));
    }

    // u0 = 1.
    double Pressure(double z, double t) const {
        double u = 0;
        for (const double b : roots_) {
            const double p = b * h1_ / c1_, q = b * h2_ / c2_;
            // D from the pressure at the interface or, where both sides vanish, from the flow.
            const double D =
                std::abs(g(q)) > 1e-3 ? std::sin(p) / g(q) : -k1_ / c1_ * std::cos(p) / (k2_ / c2_ * gSlope(q));
            // Integrals of Z and of Z^2 over each layer.
            const double z1 = (1 - std::cos(p)) * c1_ / b, z2 = D * gIntegral(q) * c2_ / b;
            const double zz1 = (p - std::sin(2 * p) / 2) * c1_ / (2 * b);
            const double zz2 = D * D * (q + (drained_ ? -1 : 1) * std::sin(2 * q) / 2) * c2_ / (2 * b);
            const double w1 = k1_ / (c1_ * c1_), w2 = k2_ / (c2_ * c2_);
            const double Z = z <= h1_ ? std::sin(b * z / c1_) : D * g(b * (h1_ + h2_ - z) / c2_);
            u += (w1 * z1 + w2 * z2) / (w1 * zz1 + w2 * zz2) * Z * std::exp(-b * b * t);
        }
        return u;
    }

  private:
    double g(double q) const { return drained_ ? std::sin(q) : std::cos(q); }
    double gIntegral(double q) const { return drained_ ? 1 - std::cos(q) : std::sin(q); }
    double gSlope(double q) const { return drained_ ? std::cos(q) : -std::sin(q); }
    // Zero where the flow is continuous: k1/c1 cos p g(q) + k2/c2 sin p g'(q).
    double Flow(double b) const {
        const double p = b * h1_ / c1_, q = b * h2_ / c2_;
        return k1_ / c1_ * std::cos(p) * g(q) + k2_ / c2_ * std::sin(p) * gSlope(q);
    }
    double Bisected(double low, double high) const {
        for (int k = 0; k < 60; ++k) {
            const double middle = (low + high) / 2;
            (Flow(low) * Flow(middle) <= 0 ? high : low) = middle;
        }
        return (low + high) / 2;
    }

    double h1_, h2_, c1_, c2_, k1_, k2_;
    bool drained_;
    std::vector<double> roots_;
};

TEST_F(RateTheory, TwoLayerSolutionUsedHereIsTerzaghisForEqualLayers) {
    const TwoLayers equal(40, 60, 2, 2, 5, 5, false);
    for (const double z : {10.0, 40.0, 50.0, 100.0})
        EXPECT_NEAR(equal.Pressure(z, 700), TerzaghiPressure(z / 100, 2 * 700.0 / 1e4), 1e-9);
}

struct GrayCase {
    const char* Name;
    double h1, h2, cvRatio, kRatio;
    Integer Drainage;
    double days;
};

class RateTwoLayers : public RateTheory, public testing::WithParamInterface<GrayCase> {};

// The flow through the interface is taken from one-sided differences, so the error is of the first order: halving the
// number of intervals doubles it, and twice the fine result less the coarse one is right.
TEST_P(RateTwoLayers, FollowGrayToTheFirstOrder) {
    const GrayCase& g = GetParam();
    double degree[2], interface[2];
    double exactDegree = 0, exactInterface = 0, steps = 0;
    for (const int k : {0, 1}) {
        const double size = k == 0 ? 0.5 : 1;
        RateCase c = StepCase(g.h1 * size, g.Drainage);
        c.NumLayers = 2;
        c.h(2) = g.h2 * size;
        c.Cv(2) = c.Cv(1) * g.cvRatio;
        c.K = Array<Single>::Of({1e-9, 1e-9 * g.kRatio});
        c.T = g.days * size * size;
        Run(c);
        steps = StepsOf(c);
        const int n1 = static_cast<int>(c.h(1)), last = Session.IsoLast;
        const TwoLayers theory(c.h(1), c.h(2), c.Cv(1), c.Cv(2), 1, g.kRatio, g.Drainage == 1);
        const double t = c.T * kDay;
        double sum = 0;
        for (int m = 0; m <= last; ++m) {
            const double exact = 100 * theory.Pressure(m, t);
            EXPECT_NEAR(Session.IsoUf(m), exact, 1.6) << "node " << m << " of " << last;
            sum += exact * (m == 0 || m == last ? 0.5 : 1);
        }
        degree[k] = Session.Uc;
        exactDegree = (1 - sum / 100 / last) * 100;
        interface[k] = Session.IsoUf(n1);
        exactInterface = 100 * theory.Pressure(n1, t);
    }
    EXPECT_GT(exactDegree, 10);
    EXPECT_LT(exactDegree, 90);
    EXPECT_NEAR(2 * degree[1] - degree[0], exactDegree, 0.02 + Rounding(steps));
    EXPECT_NEAR(2 * interface[1] - interface[0], exactInterface, 0.02 + Rounding(steps));
}

INSTANTIATE_TEST_SUITE_P(Cases, RateTwoLayers,
                         testing::Values(GrayCase{"SlowBelowDrained", 80, 60, 0.25, 0.25, 1, 1500},
                                         GrayCase{"SlowBelowImpermeable", 80, 60, 0.25, 0.5, 2, 2500},
                                         GrayCase{"PermeableBelow", 60, 84, 0.5, 4, 1, 1200},
                                         GrayCase{"TightBelow", 60, 84, 1, 0.1, 1, 1500}),
                         [](const auto& param) { return std::string(param.param.Name); });

}  // namespace
}  // namespace lithmark::tests
