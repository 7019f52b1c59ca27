// The closed forms against theory: published tables, and fine numerical integration of the exact stresses in 64 bits.
#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "kernels/elastic/LayerFactors.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

constexpr double kEpsilon = std::numeric_limits<Single::Storage>::epsilon();

// Simpson's rule; the cubic substitution puts most points at z1, where stresses near a load change fastest.
double DepthMean(const std::function<double(double)>& stress, double z1, double z2) {
    constexpr int steps = 4000;
    const auto term = [&](int i) {
        const double t = static_cast<double>(i) / steps;
        return stress(z1 + (z2 - z1) * t * t * t) * 3 * t * t;
    };
    double sum = term(0) + term(steps);
    for (int i = 1; i < steps; ++i) sum += term(i) * (i % 2 == 0 ? 2 : 4);
    return sum / (3 * steps);
}

double BoussinesqStress(double x, double y, double z) {
    return 3 * z * z * z / (2 * kPi * std::pow(x * x + y * y + z * z, 2.5));
}

double NewmarkCornerStress(double a, double b, double z) {
    if (z == 0) return 0.25;
    const double R3 = std::sqrt(a * a + b * b + z * z);
    return (std::atan(a * b / (z * R3)) + a * b * z / R3 * (1 / (a * a + z * z) + 1 / (b * b + z * z))) / (2 * kPi);
}

double CircleAxisStress(double a, double z) {
    return 1 - z * z * z / std::pow(a * a + z * z, 1.5);
}

// Steinbrenner's two functions of the corner of a layer: the settlement factor is b ((1 - nu^2) F1 + (1 - nu - 2 nu^2)
// F2).
double SteinbrennerF1(double l, double h) {
    return (l * std::log((1 + std::sqrt(l * l + 1)) * std::sqrt(l * l + h * h) /
                         (l * (1 + std::sqrt(l * l + h * h + 1)))) +
            std::log((l + std::sqrt(l * l + 1)) * std::sqrt(1 + h * h) / (l + std::sqrt(l * l + h * h + 1)))) /
           kPi;
}
double SteinbrennerF2(double l, double h) {
    return h / (2 * kPi) * std::atan(l / (h * std::sqrt(l * l + h * h + 1)));
}

TEST(Reference, StressesAreThePublishedOnes) {
    EXPECT_NEAR(NewmarkCornerStress(1, 1, 1), 0.1752, 5e-5);   // Fadum (1948), m = n = 1
    EXPECT_NEAR(NewmarkCornerStress(2, 1, 1), 0.1999, 5e-5);   // m = 1, n = 2
    EXPECT_NEAR(NewmarkCornerStress(1, 1, 2), 0.0840, 5e-5);   // m = n = 0.5
    EXPECT_NEAR(BoussinesqStress(0, 0, 1), 0.4775, 5e-5);      // Boussinesq's influence value under the load
    EXPECT_NEAR(BoussinesqStress(0.6, 0.8, 1), 0.0844, 5e-5);  // and at r/z = 1
    EXPECT_NEAR(CircleAxisStress(1, 1), 0.6464, 5e-5);         // z = radius
}

TEST(RectCornerHalfSpace, GivesSchleichersValues) {
    // Schleicher (1926): settlement of the corner in units of q b (1 - nu^2)/E for a/b = 1, 2, 5, 10, to two digits.
    const double table[][2] = {{1, 0.56}, {2, 0.77}, {5, 1.05}, {10, 1.27}};
    for (const auto& [a, factor] : table) EXPECT_NEAR(RectCornerHalfSpace(a, 1, 0), factor, 5e-3);
    // In closed form for the square.
    EXPECT_NEAR(RectCornerHalfSpace(1, 1, 0), 2 * std::log((std::sqrt(2) + 1) / (std::sqrt(2) - 1)) / (2 * kPi),
                4 * kEpsilon);
    // Symmetric in the sides, proportional to the size, and to 1 - nu^2.
    EXPECT_EQ(RectCornerHalfSpace(3, 2, 0.3), RectCornerHalfSpace(2, 3, 0.3));
    EXPECT_EQ(RectCornerHalfSpace(8, 4, 0.25), 4 * RectCornerHalfSpace(2, 1, 0.25));
    EXPECT_NEAR(RectCornerHalfSpace(2, 1, 0.5), 0.75 * RectCornerHalfSpace(2, 1, 0), 2 * kEpsilon);
}

TEST(RectCornerHalfSpace, FailsOnASideOfZero) {
    EXPECT_EQ(KindOf([] { RectCornerHalfSpace(0, 1, 0.3); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { RectCornerHalfSpace(1, 0, 0.3); }), FailureKind::DivisionByZero);
}

TEST(PointHalfSpace, IsBoussinesqsSurfaceSettlement) {
    // (1 - nu^2)/(pi E r), r = 5, nu = 0.5.
    EXPECT_NEAR(PointHalfSpace(3, -4, 0.5), 0.75 / (5 * kPi), 2 * kEpsilon);
    EXPECT_EQ(KindOf([] { PointHalfSpace(0, 0, 0.3); }), FailureKind::DivisionByZero);
}

TEST(RectCornerLayer, GivesSteinbrennersTable) {
    // Steinbrenner (1934), functions F1 and F2 of a square for h/b = 1, 2, 5, 10.
    const double table[][3] = {{1, 0.142, 0.083}, {2, 0.285, 0.064}, {5, 0.437, 0.031}, {10, 0.498, 0.016}};
    for (const auto& [h, f1, f2] : table) {
        EXPECT_NEAR(SteinbrennerF1(1, h), f1, 6e-4);
        EXPECT_NEAR(SteinbrennerF2(1, h), f2, 6e-4);
    }
    for (const double l : {1.0, 1.7, 4.0}) {
        for (const double h : {0.5, 1.0, 2.0, 5.0, 10.0}) {
            for (const double nu : {0.0, 0.2, 0.5}) {
                const double expected =
                    (1 - nu * nu) * SteinbrennerF1(l, h) + (1 - nu - 2 * nu * nu) * SteinbrennerF2(l, h);
                EXPECT_NEAR(RectCornerLayer(3 * l, 3, 3 * h, nu), 3 * expected, 3 * 20 * kEpsilon)
                    << l << ' ' << h << ' ' << nu;
                EXPECT_NEAR(RectCornerLayer(3, 3 * l, 3 * h, nu), 3 * expected, 3 * 20 * kEpsilon);
            }
        }
    }
}

TEST(RectCornerLayer, TendsToTheHalfSpaceOnADeepLayer) {
    const double h = 1e6;
    for (const double nu : {0.0, 0.3, 0.5})
        EXPECT_NEAR(RectCornerLayer(3, 2, h, nu), RectCornerHalfSpace(3, 2, nu), 2e-5);
}

TEST(RectCornerLayer, DiffersByItsSecondTermFromTheFirst) {
    // By Steinbrenner's second function alone: at nu = 0.5 its factor 1 - nu - 2 nu^2 is 0.
    const double first = RectCornerLayer(2, 2, 4, 0.5) / 0.75;
    EXPECT_NEAR(RectCornerLayer(2, 2, 4, 0) - first, 2 * SteinbrennerF2(1, 2), 20 * kEpsilon);
}

TEST(RectCornerLayer, FailsWhereAQuantityVanishes) {
    EXPECT_EQ(KindOf([] { RectCornerLayer(1, 1, 0, 0.3); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { RectCornerLayer(0, 1, 1, 0.3); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { RectCornerLayer(1, 0, 1, 0.3); }), FailureKind::DivisionByZero);
}

#ifndef LITHMARK_WIDE_SINGLE
TEST(RectCornerLayer, FailsOnASideThatVanishesAgainstTheOtherIn32Bits) {
    // sqrt(1000^2 + 0.1^2) is 1000 as a Single.
    EXPECT_EQ(KindOf([] { RectCornerLayer(1000, 0.1, 10, 0.3); }), FailureKind::DivisionByZero);
}
#endif

TEST(PointLayer, IsTheSurfaceSettlementLessThatAtTheBase) {
    // Boussinesq: w = (1 + nu)/(2 pi E) (2 (1 - nu)/R + z^2/R^3); r = 3, h = 4, R = 5.
    for (const double nu : {0.0, 0.3, 0.5}) {
        const auto settlement = [nu](double R, double z) {
            return (1 + nu) / (2 * kPi) * (2 * (1 - nu) / R + z * z / (R * R * R));
        };
        EXPECT_NEAR(PointLayer(0, -3, 4, nu), settlement(3, 0) - settlement(5, 4), 4 * kEpsilon);
    }
    EXPECT_EQ(KindOf([] { PointLayer(0, 0, 4, 0.3); }), FailureKind::DivisionByZero);
}

TEST(PointLayer, TendsToTheHalfSpaceOnADeepLayer) {
    for (const double nu : {0.0, 0.3, 0.5}) EXPECT_NEAR(PointLayer(1, 2, 1e7, nu), PointHalfSpace(1, 2, nu), 2e-7);
}

TEST(MeanPointFactor, IsTheDepthMeanOfBoussinesqsStress) {
    for (const double x : {0.0, 0.5, 2.0, 7.0}) {
        for (const auto& [z1, z2] : {std::pair{0.0, 1.0}, {0.5, 1.0}, {1.0, 5.0}, {3.0, 3.25}, {10.0, 20.0}}) {
            if (x == 0 && z1 == 0) continue;
            const double y = -x / 2, R1 = std::sqrt(x * x + y * y + z1 * z1);
            const double exact = DepthMean([&](double z) { return BoussinesqStress(x, y, z); }, z1, z2);
            // Each of the terms of up to 3/R1 carries a rounding error.
            const double rounding = 4 * kEpsilon * 3 / R1 / ((z2 - z1) * 2 * kPi);
            EXPECT_NEAR(MeanPointFactor(x, y, z1, z2), exact, rounding + 1e-9 * exact) << x << ' ' << z1 << ' ' << z2;
        }
    }
}

TEST(MeanPointFactor, IsFiniteUnderTheLoadBelowTheSurface) {
    // By hand: r = 0, z from 1 to 2: (3/1 - 3/2)/(2 pi).
    EXPECT_NEAR(MeanPointFactor(0, 0, 1, 2), 1.5 / (2 * kPi), 2 * kEpsilon);
    EXPECT_EQ(KindOf([] { MeanPointFactor(0, 0, 0, 2); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { MeanPointFactor(1, 0, 2, 2); }), FailureKind::DivisionByZero);
}

TEST(MeanCornerFactor, IsTheDepthMeanOfNewmarksCornerStress) {
    for (const double a : {0.25, 1.0, 3.0}) {
        for (const double b : {0.25, 2.0}) {
            for (const auto& [z1, z2] : {std::pair{0.0, 1.0}, {0.0, 0.25}, {0.5, 1.0}, {1.0, 5.0}, {3.0, 3.25}}) {
                const double exact = DepthMean([&](double z) { return NewmarkCornerStress(a, b, z); }, z1, z2);
                // Six terms with logarithms of up to about 5 times the sides.
                const double rounding = 6 * kEpsilon * (5 * (a + b) + z2 * 1.6) / ((z2 - z1) * 2 * kPi);
                EXPECT_NEAR(MeanCornerFactor(a, b, z1, z2), exact, rounding + 1e-8) << a << ' ' << b << ' ' << z1;
            }
        }
    }
}

TEST(MeanCornerFactor, TakesTheSignOfEachSide) {
    const double factor = MeanCornerFactor(1.5, 2.5, 1, 3);
    EXPECT_NEAR(MeanCornerFactor(-1.5, 2.5, 1, 3), -factor, 20 * kEpsilon);
    EXPECT_NEAR(MeanCornerFactor(-1.5, -2.5, 1, 3), factor, 20 * kEpsilon);
}

TEST(MeanCornerFactor, IsZeroForASideUnderOneMillimetre) {
    for (const auto& [z1, z2] : {std::pair{0.0, 1.0}, {5.0, 5.0}, {-3.0, 0.0}}) {
        EXPECT_EQ(MeanCornerFactor(0.0009, 4, z1, z2), 0.0);
        EXPECT_EQ(MeanCornerFactor(4, -0.0009, z1, z2), 0.0);
        EXPECT_EQ(MeanCornerFactor(0, 0, z1, z2), 0.0);
    }
    EXPECT_GT(MeanCornerFactor(0.001, 0.5, 0, 1), 0.0);  // exactly the bound computes
    EXPECT_LT(MeanCornerFactor(-0.001, 0.5, 0, 1), 0.0);
}

TEST(MeanCornerFactor, NeedsNoDivisionAtTheSurface) {
    EXPECT_NEAR(MeanCornerFactor(100, 100, 0, 0.5), 0.25, 2e-4);  // near the surface the corner carries a quarter
    EXPECT_EQ(KindOf([] { MeanCornerFactor(1, 1, 0, 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { MeanCornerFactor(1, 1, 2, 2); }), FailureKind::DivisionByZero);
}

TEST(MeanCircleAxisFactor, IsTheDepthMeanOfTheAxisStress) {
    for (const double a : {0.5, 2.0, 10.0}) {
        for (const auto& [z1, z2] : {std::pair{0.0, 1.0}, {0.5, 1.0}, {2.0, 8.0}, {10.0, 20.0}}) {
            const double exact = DepthMean([&](double z) { return CircleAxisStress(a, z); }, z1, z2);
            const double rounding = 4 * kEpsilon * (2 * a + z2) / (z2 - z1);
            EXPECT_NEAR(MeanCircleAxisFactor(a, z1, z2), exact, rounding + 1e-9) << a << ' ' << z1 << ' ' << z2;
        }
    }
    EXPECT_EQ(KindOf([] { MeanCircleAxisFactor(0, 0, 1); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { MeanCircleAxisFactor(1, 3, 3); }), FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace lithmark::tests
