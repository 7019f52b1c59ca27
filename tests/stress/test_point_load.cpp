// The point load against Boussinesq, and its behaviour on the axes and on the surface.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <utility>

#include "stress/StressCase.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

// The stored circle number differs from pi by 3e-8, stored values by 6e-8; a few of each add up.
constexpr double kRounding = 1e-6;

// Published: Boussinesq's influence factor K(r/z) for Sigma_z = K Q / z2, four digits (Taylor 1948).
TEST(PointLoad, HasBoussinesqsTableOfVerticalStress) {
    const std::pair<double, double> table[] = {{0, 0.4775}, {0.25, 0.4103}, {0.5, 0.2733}, {0.75, 0.1565},
                                               {1, 0.0844}, {1.5, 0.0251},  {2, 0.0085}};
    for (const auto& [ratio, factor] : table) {
        const double z = 2;
        EXPECT_NEAR(Solve(PointLoadAt(ratio * z, 0, z)).Sigma_z * z * z / kQ, factor, 0.00005) << "r/z = " << ratio;
    }
}

// Theory: Boussinesq (1885) in cylindrical coordinates.
TEST(PointLoad, HasBoussinesqsStressesInAllQuadrants) {
    for (const double nu : {0.0, 0.3, 0.5})
        for (const double x : {-1.5, 0.4, 2.0})
            for (const double y : {-0.7, 3.0})
                for (const double z : {0.5, 4.0}) {
                    const Theory theory = PointTheory(x, y, z, kQ, nu, kEs);
                    const double scale = std::abs(theory.Sigma_x) + std::abs(theory.Sigma_y) +
                                         std::abs(theory.Sigma_z) + std::abs(theory.Tau_xy);
                    SCOPED_TRACE(testing::Message() << "nu " << nu << " at " << x << ", " << y << ", " << z);
                    ExpectStressesNear(Solve(PointLoadAt(x, y, z, nu)), theory, scale, kRounding);
                }
}

// Theory: Boussinesq (1885); the program gives cm.
TEST(PointLoad, HasBoussinesqsDisplacementsInTheFirstQuadrant) {
    for (const double x : {0.4, 2.0})
        for (const double z : {0.5, 4.0}) {
            const Theory theory = PointTheory(x, 3, z, kQ, kNue, kEs);
            const StressResults r = Solve(PointLoadAt(x, 3, z));
            const double scale = 100 * theory.w * kRounding;
            EXPECT_NEAR(r.u, 100 * theory.u, scale);
            EXPECT_NEAR(r.v, 100 * theory.v, scale);
            EXPECT_NEAR(r.w, 100 * theory.w, scale);
        }
}

// Theory: the surface displacement (1 - nu2) Q / (pi E r) less the displacement in the depth.
TEST(PointLoad, SettlementIsTheSurfaceDisplacementLessTheOneInTheDepth) {
    const double x = 1, y = 2, z = 1.5, r = std::hypot(x, y);
    const double surface = 100 * (1 - kNue * kNue) * kQ / (kPi * kEs * r);
    const double depth = 100 * PointTheory(x, y, z, kQ, kNue, kEs).w;
    EXPECT_NEAR(Solve(PointLoadAt(x, y, z)).s, surface - depth, surface * kRounding);
}

TEST(PointLoad, IsLinearInTheLoad) {
    SoilStressInput in = PointLoadAt(1, 2, 3);
    const StressResults once = Solve(in);
    in.Q = 2 * kQ;  // a power of two: exact
    const StressResults twice = Solve(in);
    EXPECT_EQ(twice.Sigma_z, 2 * once.Sigma_z);
    EXPECT_EQ(twice.Sigma_x, 2 * once.Sigma_x);
    EXPECT_EQ(twice.w, 2 * once.w);
}

// By hand: with r and R both 1e-10, Sigma_z = 3 Q / (2 pi z2), and Sigma_x from t1 = 1/(2 z2), t3 = 1/z2.
TEST(PointLoad, AtTheOriginIsVeryLargeAndFinite) {
    const StressResults r = Solve(PointLoadAt(0, 0, 0));
    EXPECT_NEAR(r.Sigma_z, 3 * kQ / (2 * kPi) * 1e20, 1e20);
    EXPECT_NEAR(r.Sigma_x, -0.5 * (1 - 2 * kNue) * kQ / (2 * kPi) * 1e20, 1e17);
    EXPECT_EQ(r.Sigma_y, r.Sigma_x);
    EXPECT_EQ(r.Tau_xy, 0);
    EXPECT_EQ(r.Tau_xz, 0);
    EXPECT_EQ(r.u, 0);
    EXPECT_EQ(r.v, 0);
    EXPECT_TRUE(std::isfinite(r.w) && r.w > 1e9);
}

TEST(PointLoad, OnTheSurfaceIsThatOfTheDepth1e10) {
    EXPECT_EQ(Solve(PointLoadAt(1, 2, 0)), Solve(PointLoadAt(1, 2, 1e-10)));
    EXPECT_EQ(Solve(PointLoadAt(0, 0, 0)), Solve(PointLoadAt(0, 0, 1e-10)));
}

TEST(PointLoad, WorksForAnIncompressibleSoil) {
    const Theory theory = PointTheory(1, 1, 1, kQ, 0.4999999999, kEs);
    EXPECT_NEAR(Solve(PointLoadAt(1, 1, 1, 0.5)).u, 100 * theory.u, 100 * theory.w * kRounding);
}

// Deliberate: the displacement of a point at -x is that of its mirror image at +x.
TEST(PointLoad, LosesTheSignOfXInU) {
    const StressResults east = Solve(PointLoadAt(1.5, 0, 2)), west = Solve(PointLoadAt(-1.5, 0, 2));
    EXPECT_EQ(west.u, east.u);
    EXPECT_GT(std::abs(east.u), 0.1);
    EXPECT_EQ(west.v, 0);
    EXPECT_EQ(Solve(PointLoadAt(-1.5, 1, 2)).u, Solve(PointLoadAt(1.5, 1, 2)).u);
    // The stresses keep it.
    EXPECT_EQ(west.Tau_xz, -east.Tau_xz);
}

// Deliberate: v = g Q sin(atan(y/x)).
TEST(PointLoad, GivesVTheSignOfYOverX) {
    const double v = Solve(PointLoadAt(1.5, 1, 2)).v;
    EXPECT_EQ(Solve(PointLoadAt(-1.5, 1, 2)).v, -v);
    EXPECT_EQ(Solve(PointLoadAt(1.5, -1, 2)).v, -v);
    EXPECT_EQ(Solve(PointLoadAt(-1.5, -1, 2)).v, v);
}

// Deliberate: on the y axis v has the sign of the radial factor alone.
TEST(PointLoad, OnTheYAxisHasTheSameVOnBothSides) {
    const StressResults north = Solve(PointLoadAt(0, 1.5, 2)), south = Solve(PointLoadAt(0, -1.5, 2));
    EXPECT_EQ(north.u, 0);
    EXPECT_EQ(south.v, north.v);
    EXPECT_NEAR(north.v, 100 * PointTheory(0, 1.5, 2, kQ, kNue, kEs).v, 1e-5);
}

// Deliberate: on the axis r is 1e-10. By hand: t = c/r - c/z - 1/z with c = 2 (1 - nu).
TEST(PointLoad, SettlementOnTheAxisFollowsTheSubstituteForTheRadius) {
    const double z = 2, c = 2 * (1 - kNue);
    const double expected = 100 * (1 + kNue) * (c / 1e-10 - c / z - 1 / z) / (2 * kPi * kEs) * kQ;
    EXPECT_NEAR(Solve(PointLoadAt(0, 0, z)).s, expected, expected * kRounding);
}

TEST(PointLoad, FailsForADepthAboveTheSurface) {
    // A file may hold a negative depth; there R + z vanishes on the axis.
    EXPECT_EQ(KindOf([] { Solve(PointLoadAt(0, 0, -1)); }), FailureKind::DivisionByZero);
}

TEST(PointLoad, FailsForAModulusOfZero) {
    EXPECT_EQ(KindOf([] { Solve(PointLoadAt(1, 1, 1, 0.3, 0)); }), FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace lithmark::tests
