// Rectangular rafts of more than 2500 nodes: conjugate gradients against a Cholesky decomposition in 64 bits and
// against the inverse, and when which of them solves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <Eigen/Cholesky>
#include <cmath>
#include <numeric>

#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/MatrixSoil.h"
#include "kernels/raft/OperatorSoil.h"
#include "kernels/raft/RectangularNumerical.h"
#include "raft/RaftProblem.h"
#include "report/Notices.h"

namespace lithmark {
namespace {

using tests::MomentOf;
using tests::SumOf;

// 7.5 m by 6 m in elements of 0.125 m by 0.15 m, on 3 m of soil: 2501 nodes. `rounded`: 7.4 m, where the lines are
// rounded to millimetres.
class LargeRaft : public testing::Test {
  protected:
    LargeRaft() {
        ResetSession();
        Notices().Clear();
        Session.Nue = 0.25;
        Session.ProblemType = 9;
        input_ = tests::SquareRaft();
        input_.z = 0;
        input_.h = 3;
        input_.Exz_x = 0.4;
        input_.Exz_y = 0.3;
        Mesh(7.5, 6, 60, 40);
    }
    ~LargeRaft() override { ResetSession(); }

    void Mesh(double a, double b, int nx, int ny) {
        input_.A = a;
        input_.B = b;
        mesh_ = tests::MeshOf(input_, a / nx, b / ny);
        tests::PrepareNodeArrays(mesh_);
    }

    // The influence in the elastic layer, modulus included.
    NodeInfluence LayerInfluence() const {
        NodeInfluence influence;
        influence.Point = [this](Single dx, Single dy) -> Single {
            return PointLayer(dx, dy, input_.h, 0.25) / input_.Es;
        };
        influence.Own.Redim(1, mesh_.Nodes());
        const Single corner = RectCornerLayer(mesh_.ElemHalfX, mesh_.ElemHalfY, input_.h, 0.25);
        for (int r = 1; r <= mesh_.Nodes(); ++r)
            influence.Own(r) = mesh_.NodeElems(r) / mesh_.NodeArea(r) * corner / input_.Es;
        return influence;
    }

    // The greatest difference of two lists of forces, to the mean of the first.
    static double Difference(const Array<Single>& a, const Array<Single>& b) {
        double greatest = 0;
        for (int i = 1; i <= a.Upper(); ++i) greatest = std::max(greatest, std::abs(a(i) - b(i)));
        return greatest / (SumOf(a) / a.Upper());
    }

    // The elastic layer by its matrix.
    void SolveByInverse() const {
        const MatrixSoil soil(Grid(mesh_), LayerInfluence(), false);
        const RaftEquilibrium equilibrium = soil.Equilibrium(LoadCase::BothEccentric);
        const RaftPlane plane = equilibrium.Solve(EccentricLoad(input_.Q, input_.Exz_x, input_.Exz_y), {});
        equilibrium.NodeForces(plane, Session.NodeForce);
        PlaneSettlements(plane, mesh_.u, mesh_.v, Session.NodeSettlement);
    }

    struct Results {
        Array<Single> Force, Settlement;
    };
    static Results Now() { return {Session.NodeForce, Session.NodeSettlement}; }

    RaftInput input_;
    RectangularMesh mesh_;
};

TEST_F(LargeRaft, ForcesAreThoseOfCholeskyIn64Bits) {
    for (const bool even : {true, false}) {
        if (even)
            Mesh(5, 3, 40, 20);
        else
            Mesh(3.1, 4.7, 32, 40);
        const OffsetGrid grid(mesh_);
        EXPECT_EQ(grid.X().Even(), even);
        const NodeInfluence influence = LayerInfluence();
        const OperatorSoil soil(mesh_, grid, influence);
        const int n = mesh_.Nodes();
        std::vector<double> ones(static_cast<std::size_t>(n), 1);
        const std::vector<double> u(mesh_.u.begin(), mesh_.u.end()), v(mesh_.v.begin(), mesh_.v.end());
        const std::vector<std::vector<double>> forces = soil.Solve({ones, v, u}, [](double) {});

        Eigen::MatrixXd flexibility(n, n);
        const auto distance = [](Single p, Single q) -> Single {
            return static_cast<double>(std::abs(std::lround(p * 1000) - std::lround(q * 1000))) / 1000;
        };
        for (int c = 1; c <= n; ++c)
            for (int r = c; r <= n; ++r)
                flexibility(r - 1, c - 1) = r == c ? influence.Own(r)
                                                   : influence.Point(distance(mesh_.NodeX(r), mesh_.NodeX(c)),
                                                                     distance(mesh_.NodeY(r), mesh_.NodeY(c)));
        const Eigen::LLT<Eigen::Ref<Eigen::MatrixXd>, Eigen::Lower> cholesky(flexibility);
        ASSERT_EQ(cholesky.info(), Eigen::Success);
        std::size_t k = 0;
        for (const auto& plane : {ones, v, u}) {
            const Eigen::VectorXd expected = cholesky.solve(Eigen::VectorXd::Map(plane.data(), n));
            const auto found = Eigen::VectorXd::Map(forces[k++].data(), n);
            EXPECT_LT((found - expected).cwiseAbs().maxCoeff(), 1e-10 * expected.cwiseAbs().mean());
        }
    }
}

// The inverse of 32 bits is the one that is off.
TEST_F(LargeRaft, ElasticLayerAgreesWithTheInverse) {
    for (const double a : {7.5, 7.4}) {
        Mesh(a, 6, 60, 40);
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
        Session.ProblemType = 10;
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
TEST_F(LargeRaft, TheConditionIsMeasured) {
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
}  // namespace lithmark
