// Equilibrium of the rigid raft, and its two searches on clay, on systems small enough to follow by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/ThickClay.h"
#include "kernels/raft/ThinClay.h"
#include "raft/RaftProblem.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

Array<Single> Ones(int n) {
    Array<Single> ones(1, n);
    for (Single& one : ones) one = 1;
    return ones;
}

TEST(LoadCase, AnEccentricityCountsUnlessItIsZero) {
    EXPECT_EQ(LoadCaseOf(0.1, 0.1), LoadCase::BothEccentric);
    EXPECT_EQ(LoadCaseOf(1e-30, 0), LoadCase::AlongX);
    EXPECT_EQ(LoadCaseOf(0, -2), LoadCase::AlongY);
    EXPECT_EQ(LoadCaseOf(0, 0), LoadCase::Central);
    const RaftLoad load = EccentricLoad(100, 0.5, 0.25);
    EXPECT_EQ(load.Force, 100);
    EXPECT_EQ(load.MomX, 50);
    EXPECT_EQ(load.MomY, 25);
}

// Nine separate springs of 100 kN/m on a grid of 2 m by 3 m: force 900 c0, moments 100 times 6 (2 m)^2 cx and
// 100 times 6 (3 m)^2 cy.
class Springs : public testing::Test {
  protected:
    Springs() : stiffness_(9, 9), u_(1, 9), v_(1, 9) {
        for (int i = 1; i <= 9; ++i) {
            stiffness_(i, i) = 100;
            u_(i) = ((i - 1) % 3 - 1) * 2;
            v_(i) = ((i - 1) / 3 - 1) * 3;
        }
    }
    RaftPlane Solve(LoadCase k, const RaftLoad& load, const RaftLoad& carried = {}) {
        const RaftEquilibrium equilibrium(k, 9, stiffness_, u_, v_, Ones(9));
        const RaftPlane plane = equilibrium.Solve(load, carried);
        force_.Redim(1, 9);
        equilibrium.NodeForces(plane, force_);
        return plane;
    }

    Matrix<Single> stiffness_;
    Array<Single> u_, v_, force_;
};

TEST_F(Springs, CentralLoad) {
    const RaftPlane plane = Solve(LoadCase::Central, {1800, 500, 700});
    EXPECT_EQ(plane.c0, 2);
    EXPECT_EQ(plane.cx, 0);
    EXPECT_EQ(plane.cy, 0);
    for (const Single f : force_) EXPECT_EQ(f, 200);
}

TEST_F(Springs, TiltAlongX) {
    const RaftPlane plane = Solve(LoadCase::AlongX, {1800, 500, 2400});
    EXPECT_EQ(plane.c0, 2);
    EXPECT_EQ(plane.cx, 1);
    EXPECT_EQ(plane.cy, 0);  // the other moment takes no part
    EXPECT_EQ(force_(1), 0);
    EXPECT_EQ(force_(9), 400);
}

TEST_F(Springs, TiltAlongY) {
    const RaftPlane plane = Solve(LoadCase::AlongY, {1800, 5400, 999});
    EXPECT_EQ(plane.c0, 2);
    EXPECT_EQ(plane.cx, 0);
    EXPECT_EQ(plane.cy, 1);
    EXPECT_EQ(force_(1), -100);
    EXPECT_EQ(force_(9), 500);
}

TEST_F(Springs, TiltAlongBoth) {
    const RaftPlane plane = Solve(LoadCase::BothEccentric, {1800, 2700, 1200});
    EXPECT_EQ(plane.c0, 2);
    EXPECT_EQ(plane.cx, 0.5);
    EXPECT_EQ(plane.cy, 0.5);
    EXPECT_EQ(force_(1), 100 * (2 - 0.5 * 2 - 0.5 * 3));
    EXPECT_EQ(force_(9), 100 * (2 + 0.5 * 2 + 0.5 * 3));
}

// What other forces carry already is taken off the load.
TEST_F(Springs, CarriedLoadIsTakenOff) {
    const RaftPlane plane = Solve(LoadCase::BothEccentric, {2000, 2700, 1200}, {200, 0, -1200});
    EXPECT_EQ(plane.c0, 2);
    EXPECT_EQ(plane.cx, 1);
    EXPECT_EQ(plane.cy, 0.5);
}

// Springs of different stiffness couple settlement and tilts: an elimination in 64 bits gives the same plane.
TEST_F(Springs, UnequalSpringsCoupleThePlane) {
    for (int i = 1; i <= 9; ++i) {
        stiffness_(i, i) = 50 + 13 * i + 7 * (i % 4);
        for (int c = 1; c <= 9; ++c)
            if (c != i) stiffness_(i, c) = -1.0 / (1 + std::abs(i - c));
    }
    const RaftLoad load{1800, -2700, 1200};
    const RaftPlane plane = Solve(LoadCase::BothEccentric, load);
    std::vector<double> g(9), r = {load.Force, load.MomY, load.MomX};
    for (int row = 1; row <= 9; ++row)
        for (int c = 1; c <= 9; ++c) {
            const double left[] = {1, v_(row), u_(row)}, right[] = {1, v_(c), u_(c)};
            for (std::size_t m = 0; m < 3; ++m)
                for (std::size_t k = 0; k < 3; ++k) g[m * 3 + k] += left[m] * stiffness_(row, c) * right[k];
        }
    const std::vector<double> expected = tests::SolveDense(g, r);
    EXPECT_NEAR(plane.c0, expected[0], 1e-5);
    EXPECT_NEAR(plane.cy, expected[1], 1e-5);
    EXPECT_NEAR(plane.cx, expected[2], 1e-5);
    EXPECT_NEAR(tests::SumOf(force_), 1800, 1e-2);
    EXPECT_NEAR(tests::MomentOf(u_, force_), 1200, 1e-2);
    EXPECT_NEAR(tests::MomentOf(v_, force_), -2700, 1e-2);
}

// A system folded by symmetry: one spring that stands for four and one for two.
TEST(RaftEquilibrium, WeightsStandForFoldedNodes) {
    Matrix<Single> stiffness(2, 2);
    stiffness(1, 1) = 100;
    stiffness(2, 2) = 50;
    Array<Single> u(1, 2), weight(1, 2);
    u(1) = 1;
    u(2) = -2;
    weight(1) = 4;
    weight(2) = 2;
    const RaftEquilibrium central(LoadCase::Central, 2, stiffness, u, u, weight);
    EXPECT_EQ(central.Solve({1000, 0, 0}, {}).c0, 2);  // 4 * 100 + 2 * 50
    // Force 500 c0 + 200 cx, moment 200 c0 + 800 cx.
    const RaftEquilibrium tilted(LoadCase::AlongX, 2, stiffness, u, u, weight);
    const RaftPlane plane = tilted.Solve({1000, 0, 1000}, {});
    EXPECT_NEAR(plane.c0, (1000 * 800 - 1000 * 200) / 360000.0, 1e-7);
    EXPECT_NEAR(plane.cx, (1000 * 500 - 1000 * 200) / 360000.0, 1e-7);
    EXPECT_EQ(plane.cy, 0);
}

TEST(RaftEquilibrium, SystemWithoutStiffnessDividesByZero) {
    const Matrix<Single> nothing(3, 3);
    const Array<Single> u = Ones(3);
    for (const LoadCase k : {LoadCase::BothEccentric, LoadCase::AlongX, LoadCase::AlongY, LoadCase::Central}) {
        const RaftEquilibrium equilibrium(k, 3, nothing, u, u, u);
        EXPECT_EQ(KindOf([&] { equilibrium.Solve({1, 1, 1}, {}); }), FailureKind::DivisionByZero);
    }
}

TEST(PlaneSettlements, AreCentimetresOfAPlaneInMetres) {
    Array<Single> u(1, 2), v(1, 2), settlement(1, 2);
    u(1) = 2;
    v(2) = -1;
    PlaneSettlements({0.5, 0.25, 0.125}, u, v, settlement);
    EXPECT_EQ(settlement(1), 75);  // 0.5 + 2 * 0.125
    EXPECT_EQ(settlement(2), 25);  // 0.5 - 0.25
}

// --- clay layers ---

TEST(ClayLayer, ThickFromTheDepthStepOn) {
    RaftInput input = tests::SquareRaft();
    input.h = 2.5;
    const ClayLayer one = NumericalClay(input, 2.5);
    EXPECT_TRUE(one.Thick);
    EXPECT_EQ(one.M, 1);
    EXPECT_EQ(one.DepthStep, 2.5);
    input.h = 2.4999998;
    const ClayLayer thin = NumericalClay(input, 2.5);
    EXPECT_FALSE(thin.Thick);
    EXPECT_NEAR(thin.S0, 8.69 * 2.5 / 2 + 51.82, 1e-5);
    EXPECT_NEAR(thin.C, 0.16 / 1.85, 1e-8);
}

TEST(ClayLayer, SublayersShareTheThickness) {
    RaftInput input = tests::SquareRaft();
    input.h = 10;
    const ClayLayer clay = NumericalClay(input, 3);
    ASSERT_EQ(clay.M, 4);
    EXPECT_EQ(clay.DepthStep, 2.5);
    for (int k = 1; k <= 4; ++k) {
        EXPECT_NEAR(clay.SubStress(k), 51.82 + (k - 0.5) * 2.5 * 8.69, 1e-4);
        EXPECT_EQ(SublayerTop(input, clay, k), Single(1 + (k - 1) * 2.5));
    }
    EXPECT_NEAR(clay.LayerFactor, 2.5 * 0.16 / 1.85 / std::log(10.0), 1e-8);
    EXPECT_EQ(KindOf([&] { NumericalClay(input, 0.0001); }), FailureKind::Overflow);  // 100000 sublayers
    input.eo = -1;
    EXPECT_EQ(KindOf([&] { NumericalClay(input, 3); }), FailureKind::DivisionByZero);
}

TEST(ClayLayer, LogarithmNeedsAPositiveRatio) {
    EXPECT_NEAR(LogStressRatio(50, 50), std::log(2.0), 1e-15);
    EXPECT_EQ(KindOf([] { LogStressRatio(0, 50); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { LogStressRatio(50, -50); }), FailureKind::InvalidArgument);
}

// A flexible raft by hand, with a mean stress that doubles the initial one.
TEST(FlexibleClaySettlement, EachSoilByHand) {
    RaftInput input = tests::SquareRaft();
    input.h = 2;
    EXPECT_NEAR(FlexibleClaySettlement(input, {}, [](Single z1, Single z2) -> Single { return z1 * 100 + z2; }),
                103 * 2 * 100 / 5000.0, 1e-5);  // by Es: mean stress 103 over 2 m
    input.SoilPropertyType = 2;
    const ClayLayer thin = NumericalClay(input, 3);
    EXPECT_NEAR(FlexibleClaySettlement(input, thin, [&](Single, Single) { return thin.S0; }),
                0.16 / 1.85 * std::log10(2.0) * 2 * 100, 1e-5);
    const ClayLayer thick = NumericalClay(input, 1);
    int k = 0;
    EXPECT_NEAR(FlexibleClaySettlement(input, thick,
                                       [&](Single z1, Single z2) {
                                           EXPECT_EQ(z1, k + 1);
                                           EXPECT_EQ(z2, k + 2);
                                           return thick.SubStress(++k);
                                       }),
                2 * 0.16 / 1.85 * std::log10(2.0) * 100, 1e-5);
    EXPECT_EQ(k, 2);
}

// --- thin clay ---

// On separate springs the balance of moments reads sum of u k S0 (ratio exp(u a) - 1) = M with ratio = d0/S0 + 1: for
// springs at -2, 0, 2 that is 2 k S0 ratio 2 sinh(2 a) = M.
class ThinSprings : public testing::Test {
  protected:
    ThinSprings() : stiffness_(9, 9), u_(1, 9), v_(1, 9) {
        for (int i = 1; i <= 9; ++i) {
            stiffness_(i, i) = 0.5;  // m2: node force per mean stress
            u_(i) = ((i - 1) % 3 - 1) * 2;
            v_(i) = ((i - 1) / 3 - 1) * 3;
        }
    }
    ThinClayTilt Search(LoadCase k, double momX, double momY, double tolerance) {
        const RaftEquilibrium equilibrium(k, 9, stiffness_, u_, v_, Ones(9));
        const UnitMoments moments = SumUnitMoments(k, 9, stiffness_, u_, v_, Ones(9));
        return SearchThinClayTilt(equilibrium, moments, u_, v_, {1000, momY, momX}, 50, 100, tolerance);
    }
    Matrix<Single> stiffness_;
    Array<Single> u_, v_;
};

TEST_F(ThinSprings, ExponentBalancesTheMoment) {
    // 3 nodes at +2 m and 3 at -2 m: 3 * 2 * 0.5 * 50 * 3 * 2 sinh(2 a) = M.
    const ThinClayTilt x = Search(LoadCase::AlongX, 200, 77, 1e-5);
    EXPECT_NEAR(x.a, std::asinh(200 / (3 * 2 * 0.5 * 50 * 3 * 2.0)) / 2, 1e-5);
    EXPECT_EQ(x.b, 0);
    const ThinClayTilt y = Search(LoadCase::AlongY, 77, 300, 1e-5);
    EXPECT_EQ(y.a, 0);
    EXPECT_NEAR(y.b, std::asinh(300 / (3 * 3 * 0.5 * 50 * 3 * 2.0)) / 3, 1e-5);
    const ThinClayTilt both = Search(LoadCase::BothEccentric, 200, 300, 1e-5);
    EXPECT_EQ(both.a, x.a);
    EXPECT_EQ(both.b, y.b);
    const ThinClayTilt none = Search(LoadCase::Central, 200, 300, 1e-5);
    EXPECT_EQ(none.a, 0);
    EXPECT_EQ(none.b, 0);
}

// By hand: the moment that a = 0.0013 balances, with a tolerance that lets 0.0002 pass and 0.0003 not. The search goes
// 0, 0.001, 0.002, back to 0.001 and half a step up.
TEST_F(ThinSprings, StepIsHalvedWhereTheImbalanceChangesItsSign) {
    // The imbalance is 6 m3 times sinh(0.0026) - sinh(2 a): 0.0024 for a difference of 0.0002.
    const double moment = 3 * 2 * 0.5 * 50 * 3 * 2 * std::sinh(0.0026);
    const ThinClayTilt tilt = Search(LoadCase::AlongX, moment, 0, 0.003);
    EXPECT_EQ(tilt.a, Single(Single(0.001) + 0.0005));
}

// The search steps upward: a negative moment is found going back, by halved steps, as far as the first step reaches.
TEST_F(ThinSprings, NegativeMomentIsHardlyFollowed) {
    const ThinClayTilt tilt = Search(LoadCase::AlongX, -200, 0, 1e-5);
    // 0.001 back, half a step up, and so on: it creeps down by halves and stands near -0.001.
    EXPECT_LE(tilt.a, 0);
    EXPECT_GT(tilt.a, -0.0021);
}

// A tolerance that the rounded sums never meet uses up the 1000 steps. One search ends there with what it has; a second
// one finds the count beyond 1000 and runs on until the count leaves the Integer range.
TEST_F(ThinSprings, CountRunsOnFromTheFirstSearchToTheSecond) {
    stiffness_(1, 2) = 0.123;  // sums that do not cancel to 0
    stiffness_(2, 1) = 0.123;
    const ThinClayTilt x = Search(LoadCase::AlongX, 200, 0, -1);
    const ThinClayTilt near = Search(LoadCase::AlongX, 200, 0, 1e-5);
    EXPECT_NEAR(x.a, near.a, 1e-5);
    EXPECT_NO_THROW(Search(LoadCase::AlongY, 0, 300, -1));
    EXPECT_EQ(KindOf([&] { Search(LoadCase::BothEccentric, 200, 300, -1); }), FailureKind::Overflow);
}

// A moment that no exponent below the count's end can balance leaves the exponential function's range or the count.
TEST_F(ThinSprings, HugeMomentEnds) {
    const ThinClayTilt tilt = Search(LoadCase::AlongX, 1e30, 0, 1e-5);
    EXPECT_NEAR(tilt.a, 1, 1e-4);  // 1000 steps of 0.001
    EXPECT_EQ(KindOf([&] {
                  const RaftEquilibrium equilibrium(LoadCase::AlongX, 9, stiffness_, u_, v_, Ones(9));
                  SearchThinClayTilt(equilibrium, {}, u_, v_, {1000, 0, 200}, 0, 100, 1e-5);
              }),
              FailureKind::DivisionByZero);  // no initial stress
}

TEST(ThinClay, PlaneAndIncreaseByHand) {
    RaftInput input = tests::SquareRaft();
    input.h = 2;
    ClayLayer clay = NumericalClay(input, 3);
    clay.S0 = 50;
    const ThinClayTilt tilt{0.1, -0.2};
    const RaftPlane plane = ThinClayPlane(input, clay, 150, tilt);
    EXPECT_NEAR(plane.c0, 0.16 / 1.85 * std::log10(4.0) * 2, 1e-7);
    EXPECT_NEAR(plane.cx, 0.16 * 2 * 0.1 / (1.85 * std::log(10.0)), 1e-8);
    EXPECT_NEAR(plane.cy, -0.16 * 2 * 0.2 / (1.85 * std::log(10.0)), 1e-8);
    EXPECT_EQ(ThinClayIncrease(50, 150, tilt, 0, 0), 150);
    EXPECT_NEAR(ThinClayIncrease(50, 150, tilt, 2, 1), 50 * 3, 1e-3);  // exp(0)
    EXPECT_NEAR(ThinClayIncrease(50, 150, tilt, 1, 0), 50 * (4 * std::exp(0.1) - 1), 1e-3);
    // The increase makes the settlements a plane: C log10((S0 + D)/S0) h.
    const double d = ThinClayIncrease(50, 150, tilt, 1.5, -0.5);
    EXPECT_NEAR(0.16 / 1.85 * std::log10((50 + d) / 50) * 2, plane.c0 + 1.5 * plane.cx - 0.5 * plane.cy, 1e-6);
}

// --- thick clay ---

// Springs of flexibility f whose true settlement is s(F) = f ln(1 + F) (f = 1): the tangent at no load is 1.
class ThickSprings : public testing::Test {
  protected:
    void SetUp() override {
        ResetSession();
        flexibility_.Redim(1, 3, 1, 3);
        stiffness_.Redim(1, 3, 1, 3);
        u_.Redim(1, 3);
        v_.Redim(1, 3);
        for (int i = 1; i <= 3; ++i) {
            flexibility_(i, i) = 1;
            stiffness_(i, i) = 1;
            u_(i) = i - 2;
        }
        Session.NodeForce.Redim(1, 3);
        Session.NodeSettlement.Redim(1, 3);
        Session.PrefTol = 1e-6;
    }
    void Iterate(LoadCase k, const RaftLoad& load) {
        const RaftEquilibrium equilibrium(k, 3, stiffness_, u_, v_, Ones(3));
        ThickClaySystem system;
        system.n = 3;
        UseMatrices(system, flexibility_, stiffness_);
        system.Equilibrium = &equilibrium;
        system.Load = load;
        system.u = &u_;
        system.v = &v_;
        system.TrueSettlement = [this](Array<Single>& settlement, const auto&) {
            ++passes_;
            for (int i = 1; i <= 3; ++i) settlement(i) = std::log(1 + Session.NodeForce(i));
        };
        IterateThickClay(system);
    }
    Matrix<Single> flexibility_, stiffness_;
    Array<Single> u_, v_;
    int passes_ = 0;
};

TEST_F(ThickSprings, CentralLoadSettlesByTheTrueLaw) {
    Iterate(LoadCase::Central, {6, 0, 0});
    for (int i = 1; i <= 3; ++i) {
        EXPECT_NEAR(Session.NodeForce(i), 2, 1e-5);
        EXPECT_NEAR(Session.NodeSettlement(i), 100 * std::log(3.0), 1e-3);
    }
}

// Equilibrium holds with the extra forces in it, and the nodes' true settlements lie on the plane.
TEST_F(ThickSprings, EccentricLoadBalances) {
    Iterate(LoadCase::AlongX, {6, 0, 2});
    EXPECT_NEAR(tests::SumOf(Session.NodeForce), 6, 1e-5);
    EXPECT_NEAR(tests::MomentOf(u_, Session.NodeForce), 2, 1e-5);
    for (int i = 1; i <= 3; ++i) EXPECT_NEAR(Session.NodeSettlement(i), 100 * std::log(1 + Session.NodeForce(i)), 2e-3);
    // By hand: forces x, 4 - 2x and x + 2; equal steps between the settlements make (5 - 2x)^2 = (1 + x)(3 + x).
    const double x = Session.NodeForce(1);
    EXPECT_NEAR((5 - 2 * x) * (5 - 2 * x), (1 + x) * (3 + x), 1e-3);
}

// The first pass compares with settlements of zero, so a load without settlement ends at once.
TEST_F(ThickSprings, FirstPassComparesWithZero) {
    Iterate(LoadCase::Central, {0, 0, 0});
    EXPECT_EQ(passes_, 1);
}

// The limit is told nobody; the last state stands. PrefImax + 1 passes are worked.
TEST_F(ThickSprings, LimitOfPassesLeavesTheLastState) {
    Session.PrefTol = -1;
    for (const int limit : {1, 5}) {
        passes_ = 0;
        Session.PrefImax = limit;
        Iterate(LoadCase::Central, {6, 0, 0});
        EXPECT_EQ(passes_, limit + 1);
    }
    passes_ = 0;
    Session.PrefImax = 1;
    Iterate(LoadCase::Central, {6, 0, 0});
    // By hand: the first pass gives 2 m, the second 2 m less the lack of 2 - ln 3 turned into forces.
    EXPECT_NEAR(Session.NodeSettlement(1), 100 * std::log(3.0), 1e-3);
    EXPECT_EQ(passes_, 2);
}

// Only the system's nodes are solved for; the others are filled by the caller's rule.
TEST_F(ThickSprings, SpreadFillsTheOtherNodes) {
    Session.NodeForce.Redim(1, 6);
    Session.NodeSettlement.Redim(1, 6);
    Array<Single> u(1, 6), weight(1, 3);
    for (int i = 1; i <= 6; ++i) u(i) = (i - 1) % 3 - 1;
    for (Single& w : weight) w = 2;
    const Array<Single> v(1, 6);
    const RaftEquilibrium equilibrium(LoadCase::AlongX, 3, stiffness_, u, v, weight);
    ThickClaySystem system;
    system.n = 3;
    UseMatrices(system, flexibility_, stiffness_);
    system.Equilibrium = &equilibrium;
    system.Load = {12, 0, 4};
    system.u = &u;
    system.v = &v;
    system.Spread = [](Array<Single>& values) {
        for (int i = 1; i <= 3; ++i) values(i + 3) = values(i);
    };
    system.TrueSettlement = [](Array<Single>& settlement, const auto&) {
        for (int i = 1; i <= 3; ++i) settlement(i) = std::log(1 + Session.NodeForce(i));
    };
    IterateThickClay(system);
    EXPECT_NEAR(tests::SumOf(Session.NodeForce), 12, 2e-5);
    EXPECT_NEAR(tests::MomentOf(u, Session.NodeForce), 4, 2e-5);
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(Session.NodeForce(i), Session.NodeForce(i + 3));
}

}  // namespace
}  // namespace lithmark::tests
