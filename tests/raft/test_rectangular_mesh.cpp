// The grid of the rectangular raft.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kernels/raft/RectangularInfluence.h"
#include "raft/RaftProblem.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

struct Divided {
    double side, size;
    int intervals;
};

class Division : public testing::TestWithParam<Divided> {};

// The nearest whole number of elements, halves to the even one, then one more when that is odd.
TEST_P(Division, GivesAnEvenNumber) {
    const Divided& d = GetParam();
    Single dx = d.size, dy = 1;
    const RectangularMesh mesh = BuildRectangularMesh(d.side, 2, dx, dy);
    EXPECT_EQ(mesh.nx, d.intervals);
    EXPECT_EQ(mesh.ny, 2);
    EXPECT_EQ(dx, Single(Single(d.side) / d.intervals));
    EXPECT_EQ(mesh.ElemHalfX, Single(dx / 2));
    EXPECT_EQ(mesh.NodeX.Upper(), (d.intervals + 1) * 3);
}

INSTANTIATE_TEST_SUITE_P(Sides, Division,
                         testing::Values(Divided{5, 0.5, 10}, Divided{3.1, 0.5, 6}, Divided{3.4, 0.5, 8},
                                         Divided{1.25, 0.5, 2},  // 2.5 to 2
                                         Divided{1.75, 0.5, 4},  // 3.5 to 4
                                         Divided{0.5, 0.5, 2}, Divided{0.26, 0.5, 2}, Divided{4.5, 0.5, 10}));

TEST(RectangularMesh, SideShorterThanHalfAnElementDividesByZero) {
    const auto build = [](double a, double b) {
        Single dx = 0.5, dy = 0.5;
        BuildRectangularMesh(a, b, dx, dy);
    };
    EXPECT_EQ(KindOf([&] { build(0.24, 5); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([&] { build(5, 0.25); }), FailureKind::DivisionByZero);  // 0.5 rounds to the even 0
    EXPECT_EQ(KindOf([&] { build(0.251, 0.251); }), std::nullopt);
}

TEST(RectangularMesh, NegativeSideHasNoNodes) {
    for (const auto& [a, b] : {std::pair(-5.0, 5.0), std::pair(5.0, -5.0), std::pair(-5.0, -5.0)}) {
        Single dx = 0.5, dy = 0.5;
        EXPECT_EQ(KindOf([&, a = a, b = b] { BuildRectangularMesh(a, b, dx, dy); }), FailureKind::SubscriptRange);
    }
}

TEST(RectangularMesh, SizesStayWrittenWhenTheSecondSideFails) {
    Single dx = 0.4, dy = 0.5;
    EXPECT_EQ(KindOf([&] { BuildRectangularMesh(5, 0.1, dx, dy); }), FailureKind::DivisionByZero);
    EXPECT_EQ(dx, Single(5.0 / 12));
}

// Node numbers are Integers: 181 by 181 nodes still fit, 183 by 181 do not; nor does a side of more than 32767
// elements.
TEST(RectangularMesh, MoreNodesThanAnIntegerCountsOverflow) {
    const auto build = [](double a, double b) {
        Single dx = 1, dy = 1;
        return BuildRectangularMesh(a, b, dx, dy).Nodes();
    };
    EXPECT_EQ(build(180, 180), 32761);
    EXPECT_EQ(build(2, 10920), 32763);
    EXPECT_EQ(KindOf([&] { build(182, 180); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([&] { build(2, 10922); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([&] { build(32767, 2); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([&] { build(1e9, 2); }), FailureKind::Overflow);
}

// By hand: 3.1 m in six elements of 0.51666 m; the nodes stand where the texts of three decimals say.
TEST(RectangularMesh, NodesTakeTheCoordinatesOfTheTexts) {
    Single dx = 0.5, dy = 0.5;
    const RectangularMesh mesh = BuildRectangularMesh(3.1, 1, dx, dy);
    const std::vector<std::string> texts = {"0.000", "0.517", "1.033", "1.550", "2.067", "2.583", "3.100"};
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(mesh.GridX(i), texts[static_cast<std::size_t>(i - 1)]);
        EXPECT_EQ(mesh.NodeX(i), Single(std::stod(texts[static_cast<std::size_t>(i - 1)])));
        EXPECT_EQ(mesh.NodeY(i), 0);
        EXPECT_EQ(mesh.NodeY(14 + i), 1);
    }
    // Areas come from these coordinates too: a corner has a quarter of 0.517 by 0.5, its neighbour also one of 0.516.
    EXPECT_NEAR(mesh.NodeArea(1), 0.517 * 0.5 / 4, 1e-7);
    EXPECT_NEAR(mesh.NodeArea(2), (0.517 + 0.516) * 0.5 / 4, 1e-7);
    EXPECT_NEAR(tests::SumOf(mesh.NodeArea), 3.1, 1e-6);
}

TEST(RectangularMesh, ElementsMeetAtNodes) {
    const RectangularMesh mesh = tests::MeshOf(tests::SquareRaft(), 1.25, 2.5);  // 4 by 2
    const int elems[] = {1, 2, 2, 2, 1, 2, 4, 4, 4, 2, 1, 2, 2, 2, 1};
    const double quarter = 1.25 * 2.5 / 4;
    for (int i = 1; i <= 15; ++i) {
        EXPECT_EQ(mesh.NodeElems(i), elems[i - 1]) << i;
        EXPECT_EQ(mesh.NodeArea(i), elems[i - 1] * quarter) << i;
        EXPECT_EQ(mesh.NodeRow(i), (i - 1) / 5 + 1);
        EXPECT_EQ(mesh.NodeCol(i), (i - 1) % 5 + 1);
    }
    EXPECT_EQ(mesh.CentreNode(), 8);
    EXPECT_EQ(mesh.u(8), 0);
    EXPECT_EQ(mesh.v(8), 0);
    EXPECT_EQ(mesh.u(1), -2.5);
    EXPECT_EQ(mesh.v(15), 2.5);
    ASSERT_EQ(mesh.Elements.size(), 8u);
    EXPECT_THAT(mesh.Elements[0].Nodes, testing::ElementsAre(1, 2, 6, 7));
    EXPECT_THAT(mesh.Elements[7].Nodes, testing::ElementsAre(9, 10, 14, 15));
}

// A factor taken from the table of distinct distances is bit for bit that of the pair of nodes.
TEST(GridDistances, TableGivesWhatThePairGives) {
    RaftInput input = tests::SquareRaft();
    input.A = 7.3;
    input.B = 3.1;
    const RectangularMesh mesh = tests::MeshOf(input, 0.3, 0.37);
    const Grid grid(mesh);
    const auto factor = [](Single dx, Single dy) -> Single { return std::sqrt(dx * dx + 3 * dy * dy); };
    for (const bool keep : {false, true}) {
        OffsetFactors factors(grid, factor, keep);
        Array<Single> diagonal(1, mesh.Nodes());
        for (int i = 1; i <= mesh.Nodes(); ++i) diagonal(i) = -i;
        Matrix<Single> matrix;
        FillFlexibility(grid, factors, diagonal, matrix);
        for (int r = 1; r <= mesh.Nodes(); ++r)
            for (int c = 1; c <= mesh.Nodes(); ++c)
                ASSERT_EQ(matrix(r, c),
                          r == c ? Single(-r) : factor(mesh.NodeX(r) - mesh.NodeX(c), mesh.NodeY(r) - mesh.NodeY(c)))
                    << r << " " << c;
    }
    // Far fewer distances than pairs of lines, though three decimals spoil the even spacing.
    EXPECT_LT(grid.DistancesX.Count(), mesh.Columns() * mesh.Columns() / 4);
}

// The sums over the grid at all nodes are those of a plain loop over the nodes in their order.
TEST(GridDistances, SumsGiveWhatAPlainLoopGives) {
    RaftInput input = tests::SquareRaft();
    input.B = 3.1;
    const RectangularMesh mesh = tests::MeshOf(input, 0.7, 0.4);
    const Grid grid(mesh);
    const auto factor = [](Single dx, Single dy) -> Single { return 1 / std::sqrt(1 + dx * dx + dy * dy); };
    std::vector<double> own, force;
    for (int i = 1; i <= mesh.Nodes(); ++i) {
        own.push_back(1.0 / i);
        force.push_back(Single(1000.0 / (i + 0.3)));
    }
    OffsetFactors factors(grid, factor, true);
    Array<Single> sums;
    SuperposeAtAllNodes(grid, factors, own, force, sums);
    for (int t = 1; t <= mesh.Nodes(); ++t) {
        Single sum;
        for (int i = 1; i <= mesh.Nodes(); ++i) {
            const auto k = static_cast<std::size_t>(i - 1);
            sum += i == t ? own[k] : factor(mesh.NodeX(i) - mesh.NodeX(t), mesh.NodeY(i) - mesh.NodeY(t)) * force[k];
        }
        EXPECT_EQ(sums(t), sum) << t;
    }
}

// Lines 0.4 mm apart round to the same text; the influence at no distance is then the caller's formula, with its
// failure.
TEST(GridDistances, CoincidingLinesAreNotHidden) {
    Single dx = 0.0004, dy = 1;
    const RectangularMesh mesh = BuildRectangularMesh(0.0016, 2, dx, dy);
    const Grid grid(mesh);
    EXPECT_TRUE(grid.DistancesX.LinesCoincide());
    EXPECT_FALSE(grid.DistancesY.LinesCoincide());
    OffsetFactors factors(
        grid, [](Single x, Single y) -> Single { return Quotient(1, x * x + y * y); }, false);
    Matrix<Single> matrix;
    EXPECT_EQ(KindOf([&] { FillFlexibility(grid, factors, Array<Single>(1, mesh.Nodes()), matrix); }),
              FailureKind::DivisionByZero);
}

TEST(GridDistances, OverflowOfASumIsAFailure) {
    const RectangularMesh mesh = tests::MeshOf(tests::SquareRaft(), 2.5, 2.5);
    const Grid grid(mesh);
    OffsetFactors factors(
        grid, [](Single, Single) -> Single { return 3e38; }, true);
    const std::vector<double> own(9, 0), force(9, 1);
    Array<Single> sums;
    EXPECT_EQ(KindOf([&] { SuperposeAtAllNodes(grid, factors, own, force, sums); }), FailureKind::Overflow);
}

}  // namespace
}  // namespace lithmark::tests
