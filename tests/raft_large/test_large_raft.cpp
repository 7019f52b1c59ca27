// Rectangular rafts of more than 2500 nodes: the operator against the inverse, and when which of them solves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kernels/raft/Conditioning.h"
#include "kernels/raft/RectangularNumerical.h"
#include "raft_large/LargeRaft.h"

namespace lithmark::tests {
namespace {

// The inverse of 32 bits is the one that is off. From the least number of nodes that the operator solves to 6561, on
// grids that are even and on one that is rounded to millimetres.
TEST_F(LargeRaft, ElasticLayerAgreesWithTheInverse) {
    struct Size {
        double A, B;
        int Columns, Rows;
    };
    for (const Size size : {Size{7.5, 6, 60, 40}, Size{7.4, 6, 60, 40}, Size{8, 8, 80, 80}}) {
        Mesh(size.A, size.B, size.Columns, size.Rows);
        EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
        const Results found = Now();
        EXPECT_NEAR(SumOf(found.Force), 7854, 7854 * 1e-6);
        EXPECT_NEAR(MomentOf(mesh_.u, found.Force), 7854 * 0.4, 7854 * 0.4 * 1e-6);
        EXPECT_NEAR(MomentOf(mesh_.v, found.Force), 7854 * 0.3, 7854 * 0.3 * 1e-6);

        SolveByInverse();
        EXPECT_LT(Difference(found.Force, Session.NodeForce), 1e-4);
        for (int i = 1; i <= mesh_.Nodes(); ++i)
            EXPECT_NEAR(found.Settlement(i), Session.NodeSettlement(i), 1e-5 * found.Settlement(i));
    }
}

class LargeRaftOnClay : public LargeRaft, public testing::WithParamInterface<const char*> {
  protected:
    LargeRaftOnClay() {
        Session.ProblemType = Problem::RaftConsolidation;
        Session.PrefTol = 1e-4;
    }
    RaftSolver Solve() {
        const std::string soil = GetParam();
        input_.SoilPropertyType = soil == "modulus" ? 1 : 2;
        input_.h = soil == "thick" ? 10 : 2;
        if (soil == "modulus") return SolveUniformClay(mesh_, input_);
        const ClayLayer clay = NumericalClay(input_, Sqrt(Square(input_.A) + Square(input_.B)) / 2);
        EXPECT_EQ(clay.Thick, soil == "thick");
        return clay.Thick ? SolveThickClay(mesh_, input_, clay) : SolveThinClay(mesh_, input_, clay);
    }
};

// The inverse solves the same raft when the clay begins a millionth of a millimetre below the surface, which changes no
// factor by more than its last digits.
TEST_P(LargeRaftOnClay, AgreesWithTheInverse) {
    Mesh(7.4, 6, 60, 40);
    EXPECT_EQ(Solve(), RaftSolver::Operator);
    const Results found = Now();
    input_.z = 1e-9;
    EXPECT_EQ(Solve(), RaftSolver::Inverse);
    EXPECT_LT(Difference(found.Force, Session.NodeForce), 5e-4);
    for (int i = 1; i <= mesh_.Nodes(); ++i)
        EXPECT_NEAR(found.Settlement(i), Session.NodeSettlement(i), 2e-5 * found.Settlement(i));
}

INSTANTIATE_TEST_SUITE_P(Soils, LargeRaftOnClay, testing::Values("modulus", "thin", "thick"));

// Load cases that leave out a tilt leave out its solution.
TEST_F(LargeRaft, EachLoadCaseIsItsOwn) {
    input_.Exz_x = input_.Exz_y = 0;
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    for (int i = 2; i <= mesh_.Nodes(); ++i) EXPECT_EQ(Session.NodeSettlement(i), Session.NodeSettlement(1));
    input_.Exz_x = 0.4;
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    EXPECT_NEAR(MomentOf(mesh_.u, Session.NodeForce), 7854 * 0.4, 0.01);
    EXPECT_NEAR(MomentOf(mesh_.v, Session.NodeForce), 0, 0.01);
    for (int i = 1; i <= mesh_.Nodes(); ++i)
        EXPECT_EQ(Session.NodeSettlement(i), Session.NodeSettlement(mesh_.NodeCol(i)));
    input_.Exz_x = 0;
    input_.Exz_y = 0.3;
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    EXPECT_NEAR(MomentOf(mesh_.u, Session.NodeForce), 0, 0.01);
    EXPECT_NEAR(MomentOf(mesh_.v, Session.NodeForce), 7854 * 0.3, 0.01);
}

// --- who solves ---

TEST_F(LargeRaft, TheInverseSolvesUpTo2500Nodes) {
    Mesh(4.8, 5, 48, 50);  // 2499
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Inverse);
    Mesh(6, 5, 60, 40);  // 2501
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    input_.z = 1;  // which an elastic layer does not know
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    EXPECT_EQ(SolveUniformClay(mesh_, input_), RaftSolver::Inverse);
    EXPECT_TRUE(Notices().All().empty());
}

// About the norm's condition number that the inverse gives, which bounds it.
TEST_F(LargeRaft, TheConditionIsMeasuredAboutAsByTheInverse) {
    SolveElasticLayer(mesh_, input_);
    const double found = MeasuresOfRaft().Condition;
    SolveByInverse();
    EXPECT_GT(found, 0.2 * MeasuresOfRaft().Condition);
    EXPECT_LT(found, MeasuresOfRaft().Condition);
}

// Long elements: two neighbours across them are closer than their own areas reach, and the system is not positive. The
// inverse solves it, digit by digit as it would without a first try.
TEST_F(LargeRaft, TheInverseSolvesWhatTheOperatorCannot) {
    Mesh(40, 2, 40, 60);
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::InverseInstead);
    EXPECT_EQ(NoticeIds(), "solver-fallback");
    EXPECT_THAT(NoticeText(Notices().All().front()), testing::HasSubstr("2501"));
    const Results found = Now();
    SolveByInverse();
    for (int i = 1; i <= mesh_.Nodes(); ++i) EXPECT_EQ(found.Force(i), Session.NodeForce(i));
}

// 32 761 nodes, the most that a square raft can have: equilibrium, symmetry and a settlement near the half-space's.
TEST_F(LargeRaft, TheLargestSquareRaftIsSolved) {
    input_.Exz_y = 0;
    input_.h = 1000;
    Mesh(45, 45, 180, 180);
    ASSERT_EQ(mesh_.Nodes(), 32761);
    EXPECT_EQ(SolveElasticLayer(mesh_, input_), RaftSolver::Operator);
    EXPECT_NEAR(SumOf(Session.NodeForce), 7854, 7854 * 1e-6);
    EXPECT_NEAR(MomentOf(mesh_.u, Session.NodeForce), 7854 * 0.4, 7854 * 0.4 * 1e-6);
    for (int j = 1; j <= 90; ++j)
        for (int i = 1; i <= 181; ++i)
            EXPECT_NEAR(Session.NodeForce(mesh_.Node(i, j)), Session.NodeForce(mesh_.Node(i, 182 - j)), 1e-6);
    // Rigid square on the half-space: w = 0.88 (1 - nu nu) Q/(Es B) about, and the layer takes some per cent away.
    const double halfSpace = 0.88 * (1 - 0.0625) * 7854 / (5000 * 45) * 100;
    EXPECT_NEAR(Session.NodeSettlement(mesh_.CentreNode()), halfSpace, 0.06 * halfSpace);
}

}  // namespace
}  // namespace lithmark::tests
