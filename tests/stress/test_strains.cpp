// Strains by Hooke's law, and principal values.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/stress/PrincipalValues.h"
#include "stress/StressCase.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

class Strains : public testing::Test {
  protected:
    void SetUp() override { ResetSession(); }
};

// Theory: Hooke's law, from the results' own stresses; with the law of the volume, (1 - 2 nu)/E times their sum.
TEST_F(Strains, FollowFromTheStressesByHookesLaw) {
    for (const SoilStressInput& in : {PointLoadAt(1, 2, 3), RectangleAt(1, 2, 3, 4, 3), CircleAt(1, 2, 3, 3)}) {
        const StressResults r = Solve(in);
        const double scale = (std::abs(r.Sigma_x) + std::abs(r.Sigma_y) + std::abs(r.Sigma_z)) / kEs * 2e-7;
        EXPECT_NEAR(r.Varepsilon_x, (r.Sigma_x - kNue * (r.Sigma_y + r.Sigma_z)) / kEs, scale);
        EXPECT_NEAR(r.Varepsilon_y, (r.Sigma_y - kNue * (r.Sigma_x + r.Sigma_z)) / kEs, scale);
        EXPECT_NEAR(r.Varepsilon_z, (r.Sigma_z - kNue * (r.Sigma_x + r.Sigma_y)) / kEs, scale);
        EXPECT_NEAR(r.Varepsilon_x + r.Varepsilon_y + r.Varepsilon_z,
                    (1 - 2 * kNue) * (r.Sigma_x + r.Sigma_y + r.Sigma_z) / kEs, scale);
        const double shear = 2 * (1 + kNue) / kEs;
        EXPECT_NEAR(r.Gamma_xy, shear * r.Tau_xy, scale);
        EXPECT_NEAR(r.Gamma_xz, shear * r.Tau_xz, scale);
        EXPECT_NEAR(r.Gamma_yz, shear * r.Tau_yz, scale);
    }
}

// Law: the vertical strain is the change of w with the depth; that joins stresses and displacements, which the kernels
// compute apart.
TEST_F(Strains, AreTheSlopeOfTheVerticalDisplacement) {
    const auto compare = [](auto at) {
        const double dz = 0.05;
        const double slope = (Solve(at(2 - dz)).w - Solve(at(2 + dz)).w) / (2 * dz) / 100;
        const double strain = Solve(at(2.0)).Varepsilon_z;
        EXPECT_NEAR(strain, slope, 0.002 * strain);
    };
    compare([](double z) { return PointLoadAt(0.5, 0.3, z); });
    compare([](double z) { return RectangleAt(0.5, 0.3, z, 4, 3); });
    compare([](double z) { return CircleAt(0.5, 0.3, z, 3); });
}

TEST_F(Strains, OfAnIncompressibleSoilKeepItsVolume) {
    const StressResults r = Solve(RectangleAt(1, 1, 1, 4, 3, 0.5));
    EXPECT_NEAR(r.Varepsilon_x + r.Varepsilon_y + r.Varepsilon_z, 0, 1e-8);
}

TEST_F(Strains, FollowFromTheStressesThatStandWithAnUnknownLoadType) {
    Session.Sigma_x = 10;
    Session.Sigma_y = 20;
    Session.Sigma_z = 40;
    Session.Tau_xz = 5;
    Session.w = 7;
    SoilStressInput in = PointLoadAt(1, 1, 1, 0.25, 1000);
    in.LoadType = 4;
    const StressResults r = Solve(in);
    EXPECT_EQ(r.Sigma_z, 40);
    EXPECT_EQ(r.w, 7);
    EXPECT_EQ(r.Varepsilon_z, Single((40 - 30 * 0.25) / 1000));
    EXPECT_EQ(r.Gamma_xz, Single(5.0 / 400));
}

TEST_F(Strains, FailForAPoissonsRatioOfMinusOne) {
    EXPECT_EQ(KindOf([] { Solve(PointLoadAt(1, 1, 1, -1)); }), FailureKind::DivisionByZero);
}

// By hand: radius 50 = sqrt(40^2 + 30^2) about 70.
TEST(PrincipalStresses, AreThoseOfTheCircleInTheXZPlane) {
    const PrincipalStresses s = ComputePrincipalStresses(40, 30, 100, 40);
    EXPECT_EQ(s.max_Tau, 50);
    EXPECT_EQ(s.max_Sigma, 120);
    EXPECT_EQ(s.min_Sigma, 20);
    EXPECT_EQ(s.p, Single(170.0 / 3));
}

// Deliberate: the intermediate stress is p - 120 - 20 = -83.33, not the 30 of the y axis, so q is 176.10 and not 95.39.
TEST(PrincipalStresses, TakeTheIntermediateStressForQFromTheMean) {
    const double mid = 170.0 / 3 - 140;
    const double expected = std::sqrt((100 * 100 + (mid - 20) * (mid - 20) + (120 - mid) * (120 - mid)) / 2);
    EXPECT_NEAR(expected, 176.10, 0.005);
    EXPECT_NEAR(ComputePrincipalStresses(40, 30, 100, 40).q, expected, 1e-4);
}

// By hand: max_Gamma = sqrt(0.004^2 + 0.003^2), half of it about 0.0025; the intermediate strain is that of the y axis.
TEST(PrincipalStrains, AreThoseOfTheCircleInTheXZPlane) {
    const PrincipalStrains e = ComputePrincipalStrains(0.001, -0.0002, 0.004, 0.004);
    EXPECT_NEAR(e.max_Gamma, 0.005, 1e-9);
    EXPECT_NEAR(e.max_Epsilon, 0.005, 1e-9);
    EXPECT_NEAR(e.min_Epsilon, 0, 1e-9);
    EXPECT_NEAR(e.Epsilon_p, 0.0048, 1e-9);
    EXPECT_NEAR(e.Epsilon_q, std::sqrt(0.005 * 0.005 + 0.0002 * 0.0002 + 0.0052 * 0.0052) * std::sqrt(2.0) / 3, 1e-9);
}

}  // namespace
}  // namespace lithmark::tests
