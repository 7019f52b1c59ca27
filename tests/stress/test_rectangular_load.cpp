// The rectangular load against published tables and integrals of the point load, and what of it is deliberate.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "kernels/elastic/RectangularLoad.h"
#include "stress/StressCase.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

constexpr double kRectangleRounding = 2e-6;

// Published: influence factors I(m, n) under the corner of a rectangle, m = a/z, n = b/z, four digits (Newmark 1935,
// Fadum 1948).
TEST(RectangularLoad, HasFadumsTableUnderItsCorner) {
    const std::tuple<double, double, double> table[] = {
        {0.1, 0.1, 0.0047}, {0.2, 0.2, 0.0179}, {0.3, 0.3, 0.0374}, {0.4, 0.4, 0.0602}, {0.5, 0.5, 0.0840},
        {0.5, 1.0, 0.1202}, {1.0, 1.0, 0.1752}, {1.0, 2.0, 0.1999}, {2.0, 2.0, 0.2325}, {3.0, 3.0, 0.2439}};
    for (const auto& [m, n, factor] : table) {
        const double z = 2, a = m * z, b = n * z;
        EXPECT_NEAR(Solve(RectangleAt(a / 2, b / 2, z, a, b)).Sigma_z / kP, factor, 0.00006) << m << ", " << n;
    }
}

// Theory: integral of Boussinesq's solution. Points inside, outside and beside the load, with positive coordinates.
TEST(RectangularLoad, HasTheStressesOfTheIntegratedPointLoad) {
    const double a = 4, b = 3;
    for (const double nu : {0.0, 0.3, 0.5})
        for (const auto& [x, y, z] : {std::tuple{0.5, 0.3, 1.0},
                                      {1.2, 1.0, 2.5},
                                      {3.5, 0.4, 1.0},
                                      {0.8, 4.0, 1.5},
                                      {3.0, 2.5, 2.0},
                                      {0.0, 0.0, 3.0},
                                      {9.0, 7.0, 6.0}}) {
            SCOPED_TRACE(testing::Message() << "nu " << nu << " at " << x << ", " << y << ", " << z);
            ExpectStressesNear(Solve(RectangleAt(x, y, z, a, b, nu)), RectangleTheory(x, y, z, kP, a, b, nu, kEs), kP,
                               kRectangleRounding);
        }
}

// Theory: integral of Boussinesq's solution.
TEST(RectangularLoad, HasTheVerticalDisplacementOfTheIntegratedPointLoad) {
    for (const auto& [x, y, z] : {std::tuple{0.5, 0.3, 1.0}, {3.5, 0.4, 1.0}, {2.0, 1.5, 2.0}, {2.0, 0.4, 1.0}}) {
        const double w = 100 * RectangleTheory(x, y, z, kP, 4, 3, kNue, kEs).w;
        EXPECT_NEAR(Solve(RectangleAt(x, y, z, 4, 3)).w, w, w * kRectangleRounding);
    }
}

// Published: a flexible square of side B settles 1.122 p B (1 - nu2)/E at its centre, half of it at a corner
// (Steinbrenner 1934, Schleicher 1926); a rectangle of 2 B by B 1.532 and half of it.
TEST(RectangularLoad, HasSchleichersShapeFactorsOnTheSurface) {
    const double B = 3, unit = 100 * kP * B * (1 - kNue * kNue) / kEs;
    EXPECT_NEAR(Solve(RectangleAt(0, 0, 0, B, B)).w / unit, 1.122, 0.0005);
    EXPECT_NEAR(Solve(RectangleAt(B / 2, B / 2, 0, B, B)).w / unit, 0.561, 0.0005);
    EXPECT_NEAR(Solve(RectangleAt(0, 0, 0, 2 * B, B)).w / unit, 1.532, 0.0005);
    EXPECT_NEAR(Solve(RectangleAt(B, B / 2, 0, 2 * B, B)).w / unit, 0.766, 0.0005);
}

// Law: s + w is the displacement of the surface, at any depth.
TEST(RectangularLoad, SettlementAndDisplacementAddUpToTheSurfaceDisplacement) {
    for (const double x : {0.0, 1.3, 4.0}) {
        const double surface = Solve(RectangleAt(x, 0.7, 0, 4, 3)).w;
        for (const double z : {0.5, 2.0, 10.0}) {
            const StressResults r = Solve(RectangleAt(x, 0.7, z, 4, 3));
            EXPECT_NEAR(r.w + r.s, surface, surface * kRectangleRounding) << x << ", " << z;
        }
    }
}

// By hand: the load itself just under its surface, nothing beside it; half of it on an edge, a quarter at a corner.
TEST(RectangularLoad, OnTheSurfaceIsThePressureInsideAHalfOnAnEdgeAndAQuarterAtACorner) {
    EXPECT_NEAR(Solve(RectangleAt(0.5, 0.5, 0, 4, 3)).Sigma_z, kP, kP * kRectangleRounding);
    EXPECT_NEAR(Solve(RectangleAt(2, 0.5, 0, 4, 3)).Sigma_z, kP / 2, kP * kRectangleRounding);
    EXPECT_NEAR(Solve(RectangleAt(2, 1.5, 0, 4, 3)).Sigma_z, kP / 4, kP * kRectangleRounding);
    EXPECT_NEAR(Solve(RectangleAt(5, 0.5, 0, 4, 3)).Sigma_z, 0, kP * kRectangleRounding);
}

TEST(RectangularLoad, OnTheSurfaceIsThatOfTheDepth1e10) {
    for (const double x : {0.0, 1.0, 2.0, 5.0})
        EXPECT_EQ(Solve(RectangleAt(x, 0.5, 0, 4, 3)), Solve(RectangleAt(x, 0.5, 1e-10, 4, 3)));
}

// Law: superposition. The rectangle is the sum of its halves, seen from their own centres.
TEST(RectangularLoad, IsTheSumOfItsHalves) {
    const double x = 3.1, y = 0.4, z = 1.7;
    const StressResults whole = Solve(RectangleAt(x, y, z, 4, 3)), right = Solve(RectangleAt(x - 1, y, z, 2, 3)),
                        left = Solve(RectangleAt(x + 1, y, z, 2, 3));
    EXPECT_NEAR(whole.Sigma_z, left.Sigma_z + right.Sigma_z, kP * kRectangleRounding);
    EXPECT_NEAR(whole.Sigma_x, left.Sigma_x + right.Sigma_x, kP * kRectangleRounding);
    EXPECT_NEAR(whole.Sigma_y, left.Sigma_y + right.Sigma_y, kP * kRectangleRounding);
    EXPECT_NEAR(whole.Tau_xy, left.Tau_xy + right.Tau_xy, kP * kRectangleRounding);
    EXPECT_NEAR(whole.Tau_xz, left.Tau_xz + right.Tau_xz, kP * kRectangleRounding);
    EXPECT_NEAR(whole.w, left.w + right.w, whole.w * kRectangleRounding);
}

// Law: turning load and point by a right angle exchanges x and y.
TEST(RectangularLoad, ExchangesXAndYWhenTurned) {
    const StressResults r = Solve(RectangleAt(0.6, 1.9, 1.2, 4, 3)), t = Solve(RectangleAt(1.9, 0.6, 1.2, 3, 4));
    EXPECT_NEAR(r.Sigma_x, t.Sigma_y, kP * kRectangleRounding);
    EXPECT_NEAR(r.Tau_xz, t.Tau_yz, kP * kRectangleRounding);
    EXPECT_NEAR(r.Tau_xy, t.Tau_xy, kP * kRectangleRounding);
    EXPECT_NEAR(r.u, t.v, r.w * kRectangleRounding);
    EXPECT_NEAR(r.w, t.w, r.w * kRectangleRounding);
}

// By hand: at the centre the four corners are alike, each with the influence of a/2 by b/2.
TEST(RectangularLoad, AtTheCentreIsFourEqualCorners) {
    const double corner = Solve(RectangleAt(1, 0.75, 1.5, 2, 1.5)).Sigma_z;
    EXPECT_NEAR(Solve(RectangleAt(0, 0, 1.5, 4, 3)).Sigma_z, 4 * corner, kP * kRectangleRounding);
    const SubRectangles corners = SplitRectangle(0, 0, 4, 3);
    const double expected[][2] = {{2, 1.5}, {2, -1.5}, {-2, -1.5}, {-2, 1.5}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(corners[i].X, expected[i][0]);
        EXPECT_EQ(corners[i].Y, expected[i][1]);
    }
}

// Deliberate: the signs of x and y are lost, so shears and horizontal displacements do not change sign either.
TEST(RectangularLoad, GivesAMirrorImageTheSameResultsShearsIncluded) {
    const StressResults r = Solve(RectangleAt(1.1, 0.7, 1.5, 4, 3));
    EXPECT_GT(std::abs(r.Tau_xz), 1);
    EXPECT_EQ(Solve(RectangleAt(-1.1, 0.7, 1.5, 4, 3)), r);
    EXPECT_EQ(Solve(RectangleAt(1.1, -0.7, 1.5, 4, 3)), r);
    EXPECT_EQ(Solve(RectangleAt(-1.1, -0.7, 1.5, 4, 3)), r);
}

// The corner term of the horizontal displacement in 64 bits. `factor` stands before the last arctangent: X by theory.
double DisplacementTerm(double X, double Y, double z, double nu, double factor) {
    const double R3 = std::sqrt(X * X + Y * Y + z * z), h = z * std::log((R3 + Y) / (R3 - Y)) / 2;
    return (1 - 2 * nu) * (Y * std::log(z + R3) + h + X * std::atan(Y / X) - factor * std::atan(z * Y / (X * R3))) + h;
}

// u in cm at a point with positive coordinates, where no corner is left out.
double RectangleU(double x, double y, double z, double a, double b, double nu, bool byTheory) {
    const double X = x + a / 2, Y = y + b / 2;
    const double corners[4][2] = {{X, Y}, {X, Y - b}, {X - a, Y - b}, {X - a, Y}};
    double sum = 0, sign = 1;
    for (const auto& [Xi, Yi] : corners) {
        sum += sign * DisplacementTerm(Xi, Yi, z, nu, byTheory ? Xi : 1);
        sign = -sign;
    }
    return -100 * kP * (1 + nu) * sum / (2 * kPi * kEs);
}

// Deliberate: the last arctangent of u and v has no factor. By theory it has the side X (in metres), and then the
// closed form is the integral of the point load.
TEST(RectangularLoad, HasHorizontalDisplacementsWithoutTheFactorOfTheLastArctangent) {
    for (const auto& [x, y, z] : {std::tuple{0.5, 0.3, 1.0}, {3.5, 0.4, 1.0}, {0.8, 4.0, 1.5}, {3.0, 2.5, 2.0}}) {
        const double theory = 100 * RectangleTheory(x, y, z, kP, 4, 3, kNue, kEs).u;
        EXPECT_NEAR(RectangleU(x, y, z, 4, 3, kNue, true), theory, 1e-5);
        const StressResults r = Solve(RectangleAt(x, y, z, 4, 3));
        EXPECT_NEAR(r.u, RectangleU(x, y, z, 4, 3, kNue, false), 2e-5);
        EXPECT_NEAR(r.v, RectangleU(y, x, z, 3, 4, kNue, false), 2e-5);
        EXPECT_GT(std::abs(r.u - theory), 0.001) << "no deviation at " << x << ", " << y << ", " << z;
    }
}

// For Poisson's ratio 0.5 the deviating term vanishes.
TEST(RectangularLoad, HasTheoreticalHorizontalDisplacementsInAnIncompressibleSoil) {
    const Theory theory = RectangleTheory(3.5, 0.4, 1, kP, 4, 3, 0.4999999999, kEs);
    const StressResults r = Solve(RectangleAt(3.5, 0.4, 1, 4, 3, 0.5));
    EXPECT_NEAR(r.u, 100 * theory.u, 2e-5);
    EXPECT_NEAR(r.v, 100 * theory.v, 2e-5);
}

// Deliberate: on the line of an edge the narrow corners are left out, though the term of Tau_xy does not vanish there.
// By hand with one corner left: Tau_xy = p/(2 pi) (z/R3 + (1 - 2 nu) ln(z + R3)), R3 in metres.
TEST(RectangularLoad, HasAtACornerTheTauXyOfOneCornerAlone) {
    const double a = 4, b = 3, z = 1.5, R3 = std::sqrt(a * a + b * b + z * z);
    const double expected = kP / (2 * kPi) * (z / R3 + (1 - 2 * kNue) * std::log(z + R3));
    EXPECT_NEAR(Solve(RectangleAt(a / 2, b / 2, z, a, b)).Tau_xy, expected, kP * kRectangleRounding);
    EXPECT_GT(std::abs(expected - RectangleTheory(a / 2, b / 2, z, kP, a, b, kNue, kEs).Tau_xy), 10);
}

// By hand: on the line of the edge y = b/2 corners 2 and 3 are left out and 4 still has the sign -.
TEST(RectangularLoad, KeepsTheSignSequenceWhereCornersAreLeftOut) {
    const double a = 4, b = 3, x = 0.5, z = 1.5;
    const auto term = [&](double X, double Y) {
        const double R3 = std::sqrt(X * X + Y * Y + z * z);
        return z / R3 + (1 - 2 * kNue) * std::log(z + R3);
    };
    const double expected = kP / (2 * kPi) * (term(x + a / 2, b) - term(x - a / 2, b));
    EXPECT_NEAR(Solve(RectangleAt(x, b / 2, z, a, b)).Tau_xy, expected, kP * kRectangleRounding);
    // Where the terms vanish with the side, nothing is lost.
    const Theory theory = RectangleTheory(x, b / 2, z, kP, a, b, kNue, kEs);
    EXPECT_NEAR(Solve(RectangleAt(x, b / 2, z, a, b)).Sigma_x, theory.Sigma_x, kP * kRectangleRounding);
    EXPECT_NEAR(Solve(RectangleAt(x, b / 2, z, a, b)).w, 100 * theory.w, 100 * theory.w * kRectangleRounding);
}

TEST(RectangularLoad, LeavesOutSidesOfUpToOneMillimetre) {
    // y is a Single: a side of 0.001 as a Single is left out, one of 0.0011 is not.
    const auto tau = [](double y) { return Solve(RectangleAt(0.5, y, 1.5, 4, 3)).Tau_xy; };
    EXPECT_NEAR(tau(1.5), tau(1.5 - 0.0009), 0.02);
    EXPECT_GT(std::abs(tau(1.5) - tau(1.5 - 0.0011)), 1);
    // A rectangle just as wide, seen from its edge: nothing is left.
    const Single limit = 0.001;
    EXPECT_EQ(Solve(RectangleAt(limit / 2, 1, 1.5, limit, 3)).Tau_xy, 0);
    EXPECT_NE(Solve(RectangleAt(0.0011 / 2, 1, 1.5, 0.0011, 3)).Tau_xy, 0);
}

// Two millimetres beside an edge, on the surface, the distance to the far corner rounds to the long side: R3 - Y is 0,
// and for a corner on the other side, where Y is negative, R3 + Y, of which a logarithm is taken.
TEST(RectangularLoad, FailsWhereTheDistanceRoundsToTheLongSide) {
    EXPECT_EQ(KindOf([] { Solve(RectangleAt(50 + 0.002, 100, 0, 100, 200)); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { Solve(RectangleAt(50 + 0.002, 0, 0, 100, 200)); }), FailureKind::InvalidArgument);
    EXPECT_GT(Solve(RectangleAt(50 + 0.2, 0, 0, 100, 200)).w, 0);
}

TEST(RectangularLoad, FailsForAModulusOfZero) {
    EXPECT_EQ(KindOf([] { Solve(RectangleAt(1, 1, 1, 4, 3, 0.3, 0)); }), FailureKind::DivisionByZero);
}

TEST(RectangularLoad, StressSumAtADepthIsThatOfTheRun) {
    const double sum = RectangleSigmaZSum(SplitRectangle(1, 0.5, 4, 3), 2);
    EXPECT_EQ(Single(sum / (2 * PI) * kP), Solve(RectangleAt(1, 0.5, 2, 4, 3)).Sigma_z);
}

// The arctangent would make the infinity harmless; the division fails all the same.
TEST(RectangularLoad, StressSumOnTheSurfaceIsADivisionByZero) {
    EXPECT_EQ(KindOf([] { RectangleSigmaZSum(SplitRectangle(1, 0.5, 4, 3), 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { RectangleSigmaZSum(SplitRectangle(2, 1.5, 4, 3), 0); }), FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace lithmark::tests
