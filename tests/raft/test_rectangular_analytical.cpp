// The rectangular raft by the contact stress of the rigid punch.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/RectangularAnalytical.h"
#include "raft/RaftProblem.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

Array<Single> ForcesOf(const RectangularMesh& mesh, const RaftInput& input) {
    Array<Single> force(1, mesh.Nodes());
    PunchForces(mesh, input, force);
    return force;
}

TEST(PunchArcSine, HasTheEndsOfTheIntervalByTest) {
    EXPECT_EQ(PunchArcSine(1), Single(PI / 2));
    EXPECT_EQ(PunchArcSine(-1), Single(-PI / 2));
    EXPECT_EQ(PunchArcSine(0), 0);
    EXPECT_NEAR(PunchArcSine(0.5), kPi / 6, 1e-7);
    EXPECT_NEAR(PunchArcSine(-0.5), -kPi / 6, 1e-7);
    // Just inside, the root is taken; just outside, there is none.
    EXPECT_NEAR(PunchArcSine(std::nextafter(1.0f, 0.0f)), kPi / 2, 4e-4);
    EXPECT_EQ(KindOf([] { PunchArcSine(std::nextafter(1.0f, 2.0f)); }), FailureKind::InvalidArgument);
}

// By hand: with three nodes a side the stretches end at a quarter and three quarters, whose arcsines are a sixth of pi:
// a third of the load falls on each stretch.
TEST(PunchForces, NineNodesCarryANinthEach) {
    RaftInput input = SquareRaft();
    input.B = 8;
    const RectangularMesh mesh = MeshOf(input, 2.5, 4);
    const Array<Single> force = ForcesOf(mesh, input);
    for (int i = 1; i <= 9; ++i) EXPECT_NEAR(force(i), 7854.0 / 9, 7854.0 / 9 * 3e-7) << i;
}

// Each force is the integral of Q/(pi^2) / sqrt(((A/2)^2 - x^2)((B/2)^2 - y^2)) over the node's area.
TEST(PunchForces, IntegrateTheContactStress) {
    RaftInput input = SquareRaft();
    input.A = 6;
    input.B = 4;
    const RectangularMesh mesh = MeshOf(input, 0.5, 0.5);
    const Array<Single> force = ForcesOf(mesh, input);
    const auto share = [](double middle, double half, double side) {
        const double from = std::max(middle - half, 0.0) - side / 2, to = std::min(middle + half, side) - side / 2;
        return (std::asin(2 * to / side) - std::asin(2 * from / side)) / kPi;
    };
    for (int i = 1; i <= mesh.Nodes(); ++i)
        EXPECT_NEAR(force(i), 7854 * share(mesh.NodeX(i), 0.25, 6) * share(mesh.NodeY(i), 0.25, 4), 1e-3) << i;
    EXPECT_NEAR(SumOf(force), 7854, 0.01);
}

// Coordinates of three decimals leave gaps and overlaps below a millimetre; the sum stays near the load.
TEST(PunchForces, CarryTheLoadOnRoundedCoordinates) {
    RaftInput input = SquareRaft();
    input.A = 3.1;
    EXPECT_NEAR(SumOf(ForcesOf(MeshOf(input, 0.5, 0.5), input)), 7854, 7854 * 1e-3);
}

// The load counts as central whatever its eccentricity.
TEST(PunchForces, KnowNoEccentricity) {
    RaftInput input = SquareRaft();
    const RectangularMesh mesh = MeshOf(input, 0.5, 0.5);
    const Array<Single> central = ForcesOf(mesh, input);
    input.Exz_x = 0.7;
    input.Exz_y = -0.3;
    const Array<Single> eccentric = ForcesOf(mesh, input);
    for (int i = 1; i <= mesh.Nodes(); ++i) EXPECT_EQ(central(i), eccentric(i));
}

// 10 ft are 3.048 m; 6 ft are 1.8288 m, whose last node stands at 1.829 m, outside the raft.
TEST(PunchForces, NeedSidesInWholeMillimetres) {
    RaftInput input = SquareRaft();
    input.A = input.B = 3.048;
    EXPECT_NEAR(SumOf(ForcesOf(MeshOf(input, 0.5, 0.5), input)), 7854, 7854 * 1e-3);
    input.A = 1.8288;
    EXPECT_EQ(KindOf([&] { ForcesOf(MeshOf(input, 0.5, 0.5), input); }), FailureKind::InvalidArgument);
}

// By hand on nine equal forces: the centre sinks by its own ninth, spread over four rectangles 1.25 m by 1.25 m, and by
// the eight others as point loads.
TEST(ElasticPunchSettlement, NineNodesByHand) {
    RaftInput input = SquareRaft();
    input.SettlementAt = true;
    const RectangularMesh mesh = MeshOf(input, 2.5, 2.5);
    const Array<Single> force = ForcesOf(mesh, input);
    Array<Single> settlement(1, 9);
    ElasticPunchSettlement(mesh, input, 0.25, force, settlement);

    const double ninth = 7854.0 / 9, corner = 2 * 1.25 / kPi * std::log(1 + std::sqrt(2.0));
    const double sum = 4 * ninth / 6.25 * corner + 4 * ninth / (kPi * 2.5) + 4 * ninth / (kPi * 2.5 * std::sqrt(2.0));
    const double expected = sum * (1 - 0.0625) / 5000 * 100;
    for (int i = 1; i <= 9; ++i) EXPECT_NEAR(settlement(i), expected, expected * 1e-6);

    // The corner: its own quarter, two neighbours at 2.5 m, two at 5 m, and so on.
    input.SettlementAt = false;
    ElasticPunchSettlement(mesh, input, 0.25, force, settlement);
    double atCorner = ninth / (6.25 / 4) * corner;
    for (const double distance :
         {2.5, 2.5, 5.0, 5.0, std::hypot(2.5, 2.5), std::hypot(5.0, 2.5), std::hypot(2.5, 5.0), std::hypot(5.0, 5.0)})
        atCorner += ninth / (kPi * distance);
    for (const int i : {1, 3, 7, 9}) EXPECT_NEAR(settlement(i), atCorner * 0.9375 / 5000 * 100, expected * 1e-6);
    EXPECT_NEAR(settlement(5), expected, expected * 1e-6);
}

// With finer elements the centre tends to the integral of the contact stress: E[1/r] over the punch distribution, whose
// inner integral is a complete elliptic one.
TEST(ElasticPunchSettlement, TendsToTheIntegral) {
    RaftInput input = SquareRaft();
    input.SettlementAt = true;
    constexpr int kSteps = 20000;
    double mean = 0;
    for (int i = 0; i < kSteps; ++i) {
        const double sine = std::sin((i + 0.5) / kSteps * kPi / 2);
        const double modulus = 1 / std::sqrt(1 + sine * sine);
        mean += modulus * std::comp_ellint_1(modulus) / kSteps;
    }
    const double integral = mean * 2 / kPi * 2 / 5;  // 1/m
    const double expected = 7854 * 0.9375 / (kPi * 5000) * integral * 100;
    double previous = 1e9;
    for (const double size : {1.25, 0.5, 0.25}) {
        const RectangularMesh mesh = MeshOf(input, size, size);
        Array<Single> settlement(1, mesh.Nodes());
        ElasticPunchSettlement(mesh, input, 0.25, ForcesOf(mesh, input), settlement);
        const double error = std::abs(settlement(1) - expected);
        EXPECT_LT(error, 0.6 * previous) << size;
        previous = error;
    }
    EXPECT_LT(previous, 0.006 * expected);
    // Published, another method: a rigid square sinks by Q (1 - nu^2)/(1.08 sqrt(AB) E) (Whitman, Richart, 1967). The
    // product form of the contact stress lies some 13 % below at the centre.
    const double published = 7854 * 0.9375 / (1.08 * 5 * 5000) * 100;
    EXPECT_NEAR(expected / published, 0.88, 0.02);
}

TEST(ConfinedPunchSettlement, IsTheElasticOneWithoutLateralStrain) {
    RaftInput input = SquareRaft();
    input.A = 7;
    const RectangularMesh mesh = MeshOf(input, 0.7, 0.5);
    const Array<Single> force = ForcesOf(mesh, input);
    for (const bool centre : {true, false}) {
        input.SettlementAt = centre;
        Array<Single> confined(1, mesh.Nodes()), elastic(1, mesh.Nodes());
        ConfinedPunchSettlement(mesh, input, force, confined);
        ElasticPunchSettlement(mesh, input, 0, force, elastic);
        for (int i = 1; i <= mesh.Nodes(); ++i) EXPECT_NEAR(confined(i), elastic(i), elastic(i) * 2e-6) << i;
    }
    input.Es = 0;
    Array<Single> settlement(1, mesh.Nodes());
    EXPECT_EQ(KindOf([&] { ConfinedPunchSettlement(mesh, input, force, settlement); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([&] { ElasticPunchSettlement(mesh, input, 0.25, force, settlement); }),
              FailureKind::DivisionByZero);
}

TEST(ElasticPunchSettlement, AtAllNodesIsSymmetric) {
    RaftInput input = SquareRaft();
    const RectangularMesh mesh = MeshOf(input, 0.5, 0.5);
    Array<Single> settlement(1, mesh.Nodes());
    ElasticPunchSettlement(mesh, input, 0.25, ForcesOf(mesh, input), settlement);
    for (int j = 1; j <= mesh.Rows(); ++j)
        for (int i = 1; i <= mesh.Columns(); ++i) {
            const double s = settlement(mesh.Node(i, j));
            EXPECT_NEAR(s, settlement(mesh.Node(mesh.Columns() + 1 - i, j)), 1e-4);
            EXPECT_NEAR(s, settlement(mesh.Node(j, i)), 1e-4);
        }
}

// --- clay to the limiting depth ---

// Newmark's vertical stress under the corner of a rectangle of unit pressure, and its mean over a depth by Simpson's
// rule.
double CornerStress(double a, double b, double z) {
    const double R = std::sqrt(a * a + b * b + z * z);
    return (std::atan(a * b / (z * R)) + a * b * z / R * (1 / (a * a + z * z) + 1 / (b * b + z * z))) / (2 * kPi);
}
double MeanOver(double z1, double z2, const std::function<double(double)>& stress) {
    constexpr int kParts = 200;
    double sum = stress(z1) + stress(z2);
    for (int i = 1; i < kParts; ++i) sum += (i % 2 ? 4 : 2) * stress(z1 + (z2 - z1) * i / kParts);
    return sum / 3 / kParts;
}
double PointStress(double r, double z) {
    return 3 * z * z * z / (2 * kPi * std::pow(r * r + z * z, 2.5));
}

double StepOf(const RaftInput& input) {
    return std::hypot(static_cast<double>(input.A), static_cast<double>(input.B)) / 2;
}

struct WideColumn {
    double depth = 0, settlement = 0;
};
// The search in 64 bits with integrated stresses.
WideColumn SearchWide(const RectangularMesh& mesh, const RaftInput& input, const Array<Single>& force, int t,
                      double tolerance) {
    const double step = StepOf(input);
    WideColumn column;
    for (double previous = 0;; previous = column.settlement) {
        const double z1 = std::max(column.depth, 1e-9), z2 = column.depth + step;
        double increase = 0;
        for (int i = 1; i <= mesh.Nodes(); ++i) {
            const double r = std::hypot(mesh.NodeX(i) - mesh.NodeX(t), mesh.NodeY(i) - mesh.NodeY(t));
            increase +=
                force(i) *
                (i == t
                     ? mesh.NodeElems(i) / mesh.NodeArea(i) *
                           MeanOver(z1, z2, [&](double z) { return CornerStress(mesh.ElemHalfX, mesh.ElemHalfY, z); })
                     : MeanOver(z1, z2, [&](double z) { return PointStress(r, z); }));
        }
        const double initial = (column.depth + step / 2) * input.Gamma;
        column.depth += step;
        column.settlement += step * input.Cc / (1 + input.eo) * std::log10((initial + increase) / initial) * 100;
        if (std::abs(previous - column.settlement) < tolerance) return column;
    }
}

class ClayPunch : public testing::Test {
  protected:
    void SetUp() override {
        ResetSession();
        input_ = SquareRaft();
        input_.z = 0;
        input_.SettlementAt = true;
        mesh_ = MeshOf(input_, 1, 1);  // 6 by 6
        force_ = ForcesOf(mesh_, input_);
        settlement_.Redim(1, mesh_.Nodes());
    }
    void Settle() { ClayPunchSettlement(mesh_, input_, StepOf(input_), force_, settlement_); }

    RaftInput input_;
    RectangularMesh mesh_;
    Array<Single> force_, settlement_;
};

TEST_F(ClayPunch, CentreFollowsTheSearchInWideNumbers) {
    Session.PrefTol = 0.02;
    Settle();
    const WideColumn expected = SearchWide(mesh_, input_, force_, mesh_.CentreNode(), 0.02);
    EXPECT_NEAR(input_.h, expected.depth, 1e-4);
    for (const Single s : settlement_) EXPECT_NEAR(s, expected.settlement, expected.settlement * 2e-4);
}

// With settlements at all nodes the first node, a corner, sets the depth; the centre alone would have gone deeper here.
TEST_F(ClayPunch, FirstNodeSetsTheDepthOfAll) {
    Session.PrefTol = 5;
    Settle();
    const Single centreDepth = input_.h;
    const Single centreSettlement = settlement_(1);
    input_.SettlementAt = false;
    Settle();
    const WideColumn corner = SearchWide(mesh_, input_, force_, 1, 5);
    EXPECT_NEAR(input_.h, corner.depth, 1e-4);
    EXPECT_LT(input_.h, centreDepth);
    EXPECT_NEAR(settlement_(1), corner.settlement, corner.settlement * 2e-4);
    EXPECT_LT(settlement_(mesh_.CentreNode()), centreSettlement);
    for (int i = 1; i <= mesh_.Nodes(); ++i) EXPECT_NEAR(settlement_(i), settlement_(mesh_.Nodes() + 1 - i), 1e-3) << i;
}

// The side-by-side work of the nodes behind the first one gives what each of them gives by itself.
TEST_F(ClayPunch, NodesSideBySideGiveWhatEachGivesAlone) {
    Session.PrefTol = 0.05;
    Settle();
    const Single alone = settlement_(1), depth = input_.h;
    input_.SettlementAt = false;
    // The corner's own search ends at another depth; a tolerance that makes it the centre's depth is found by trying.
    for (const double tolerance : {0.045, 0.04, 0.035, 0.03, 0.025, 0.02, 0.015}) {
        Session.PrefTol = tolerance;
        Settle();
        if (input_.h == depth) break;
    }
    ASSERT_EQ(input_.h, depth);
    EXPECT_EQ(settlement_(mesh_.CentreNode()), alone);
}

// What h held before ends no search.
TEST_F(ClayPunch, EarlierThicknessEndsNothing) {
    Settle();
    const Single depth = input_.h, settlement = settlement_(1);
    for (const double h : {0.0, StepOf(input_), 2 * StepOf(input_)}) {
        input_.h = h;
        Settle();
        EXPECT_EQ(input_.h, depth);
        EXPECT_EQ(settlement_(1), settlement);
    }
}

TEST_F(ClayPunch, NoLoadEndsAfterOneStep) {
    for (Single& f : force_) f = 0;
    Settle();
    EXPECT_EQ(input_.h, Single(StepOf(input_)));
    EXPECT_EQ(settlement_(1), 0);
}

TEST_F(ClayPunch, SmallestToleranceStillEnds) {
    Session.PrefTol = 1e-14;
    Settle();
    EXPECT_GT(input_.h, 100);
    EXPECT_LT(input_.h, 1e5);
}

// No difference is below such a tolerance: the search cannot end and fails.
TEST_F(ClayPunch, ToleranceThatNothingMeetsFails) {
    for (const double tolerance : {0.0, -1.0}) {
        Session.PrefTol = tolerance;
        EXPECT_EQ(KindOf([&] { Settle(); }), FailureKind::DivisionByZero);
    }
}

TEST_F(ClayPunch, WeightlessClayDividesByZero) {
    input_.Gamma = 0;
    EXPECT_EQ(KindOf([&] { Settle(); }), FailureKind::DivisionByZero);
}

// Uplift: the stress at some depth becomes tension, of which there is no logarithm.
TEST_F(ClayPunch, TensionHasNoLogarithm) {
    for (Single& f : force_) f = -f;
    EXPECT_EQ(KindOf([&] { Settle(); }), FailureKind::InvalidArgument);
}

TEST_F(ClayPunch, SublayersReachToTheLimitingDepth) {
    Settle();
    const ClayLayer clay = AnalyticalClay(input_, StepOf(input_));
    EXPECT_TRUE(clay.Thick);
    EXPECT_NEAR(clay.M * StepOf(input_), input_.h, 1e-3);
    // The overburden pressure of the input does not take part.
    EXPECT_NEAR(clay.SubStress(1), StepOf(input_) / 2 * 8.69, 1e-4);
    EXPECT_NEAR(clay.SubStress(clay.M), (clay.M - 0.5) * StepOf(input_) * 8.69, 1e-2);
    EXPECT_NEAR(clay.LayerFactor, StepOf(input_) * 0.16 / 1.85 / std::log(10.0), 1e-7);
}

}  // namespace
}  // namespace lithmark::tests
