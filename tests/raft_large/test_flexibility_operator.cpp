// The flexibility of a raft without its matrix: offsets between grid lines, and the operator against plain sums.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/FlexibilityOperator.h"
#include "raft/RaftProblem.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

using Vectors = std::vector<std::vector<double>>;

RectangularMesh MeshWith(double a, double b, int columns, int rows) {
    Single dx = a / (columns - 1), dy = b / (rows - 1);
    RectangularMesh mesh = BuildRectangularMesh(a, b, dx, dy);
    EXPECT_EQ(mesh.Columns(), columns);
    EXPECT_EQ(mesh.Rows(), rows);
    return mesh;
}

long Millimetres(Single metres) {
    return std::lround(metres * 1000);
}

TEST(GridOffsets, EvenLinesHaveOneDistance) {
    const GridOffsets offsets(MeshWith(10, 5, 41, 3).GridX);
    EXPECT_TRUE(offsets.Even());
    EXPECT_EQ(offsets.Lines(), 41);
    for (int m = 0; m <= 40; ++m) {
        EXPECT_EQ(offsets.Near(m), 0.25 * m);
        EXPECT_EQ(offsets.Far(m), 0.25 * m);
        EXPECT_EQ(offsets.Shift(m), 0);
        EXPECT_EQ(offsets.Through(m, 7, 7).Value, 7);
        EXPECT_EQ(offsets.Through(m, 7, 7).Rise, 0);
    }
}

// 3.1 m in six: 0, 0.517, 1.033, 1.550, 2.067, 2.583, 3.100.
TEST(GridOffsets, RoundedLinesHaveTwo) {
    const GridOffsets offsets(MeshWith(3.1, 5, 7, 3).GridX);
    EXPECT_FALSE(offsets.Even());
    EXPECT_EQ(offsets.Near(1), Single(0.516));
    EXPECT_EQ(offsets.Far(1), Single(0.517));
    EXPECT_EQ(offsets.Near(2), Single(1.033));
    EXPECT_EQ(offsets.Far(2), Single(1.034));
    EXPECT_EQ(offsets.Near(3), Single(1.55));
    EXPECT_EQ(offsets.Far(3), Single(1.55));
    EXPECT_NEAR(offsets.Shift(1), 517 - 3100.0 / 6, 1e-12);
}

// For any side and count: no third distance, and the straight line gives back the value at each pair's own distance.
TEST(GridOffsets, TheStraightLineMeetsEveryPair) {
    std::mt19937 random(1);
    for (int run = 0; run < 300; ++run) {
        const int intervals = 2 * (1 + static_cast<int>(random() % 60));
        const double side = static_cast<double>(random() % 100000 + 100) / 1000;
        if (side / intervals < 0.002) continue;
        Single size = side / intervals, other = 1;
        const RectangularMesh mesh = BuildRectangularMesh(side, 2, size, other);
        const GridOffsets offsets(mesh.GridX);
        const auto f = [](double distance) { return 1 / (1 + distance); };
        for (int i = 0; i < offsets.Lines(); ++i) {
            for (int k = 0; k <= i; ++k) {
                const double distance =
                    static_cast<double>(Millimetres(mesh.LineX(i + 1)) - Millimetres(mesh.LineX(k + 1))) / 1000;
                const auto line = offsets.Through(i - k, f(offsets.Near(i - k)), f(offsets.Far(i - k)));
                EXPECT_NEAR(line.Value + line.Rise * (offsets.Shift(i) - offsets.Shift(k)), f(Single(distance)), 1e-13)
                    << side << " in " << intervals;
            }
        }
    }
}

TEST(GridOffsets, LinesThatAreNotRoundedEvenOnesAreRefused) {
    EXPECT_EQ(tests::KindOf([] {
                  GridOffsets(Array<std::string>::Of({"0.000", "1.000", "3.000"}));
              }),
              FailureKind::InvalidArgument);
}

// The factor is asked for the distances that stand in the coordinates' texts, and no others.
TEST(GridOffsets, FactorsAreThoseOfTheTexts) {
    const RectangularMesh mesh = MeshWith(3.1, 5, 7, 3);
    std::set<long> asked;
    CoefficientsOf(GridOffsets(mesh.GridX), GridOffsets(mesh.GridY), [&](Single dx, Single) -> Single {
        asked.insert(Millimetres(dx));
        EXPECT_EQ(dx, Single(static_cast<double>(Millimetres(dx)) / 1000));
        return 1;
    });
    EXPECT_EQ(asked, (std::set<long>{0, 516, 517, 1033, 1034, 1550, 2066, 2067, 2583, 3100}));
}

// --- the operator ---

struct Layout {
    const char* Name;
    double A, B;
    int Columns, Rows;
    bool EvenX, EvenY;
};
void PrintTo(const Layout& layout, std::ostream* out) {
    *out << layout.Name;
}

class Operators : public testing::TestWithParam<Layout> {
  protected:
    Operators() : mesh_(MeshWith(GetParam().A, GetParam().B, GetParam().Columns, GetParam().Rows)), grid_(mesh_) {}
    static Single Factor(Single dx, Single dy) { return PointLayer(dx, dy, 8, 0.25); }
    // F x by sums over all pairs of nodes.
    std::vector<double> Summed(const std::vector<double>& x, const std::vector<double>& own) const {
        std::vector<double> sums(x.size());
        for (int r = 1; r <= mesh_.Nodes(); ++r) {
            for (int c = 1; c <= mesh_.Nodes(); ++c) {
                const auto distance = [](Single p, Single q) -> Single {
                    return static_cast<double>(std::abs(Millimetres(p) - Millimetres(q))) / 1000;
                };
                const auto source = static_cast<std::size_t>(c - 1);
                sums[static_cast<std::size_t>(r - 1)] +=
                    x[source] * (r == c ? own[source]
                                        : static_cast<double>(Factor(distance(mesh_.NodeX(r), mesh_.NodeX(c)),
                                                                     distance(mesh_.NodeY(r), mesh_.NodeY(c)))));
            }
        }
        return sums;
    }
    Vectors Fields(std::size_t count) const {
        std::mt19937 random(7);
        Vectors fields(count, std::vector<double>(grid_.Nodes()));
        for (auto& field : fields)
            for (double& value : field) value = random() / 2147483648.0 - 1;
        return fields;
    }

    RectangularMesh mesh_;
    OffsetGrid grid_;
};

TEST_P(Operators, GiveTheSumsOverAllPairs) {
    EXPECT_EQ(grid_.X().Even(), GetParam().EvenX);
    EXPECT_EQ(grid_.Y().Even(), GetParam().EvenY);
    const std::vector<double> own = Fields(1).front();
    const FlexibilityOperator flexibility(grid_, Factor, own);
    for (const std::size_t count : {1u, 2u, 3u}) {
        const Vectors x = Fields(count);
        Vectors y = x;
        flexibility.Apply(x, y);
        for (std::size_t i = 0; i < count; ++i) {
            const std::vector<double> expected = Summed(x[i], own);
            double greatest = 0;
            for (const double value : expected) greatest = std::max(greatest, std::abs(value));
            for (std::size_t k = 0; k < expected.size(); ++k) EXPECT_NEAR(y[i][k], expected[k], 3e-14 * greatest);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Grids, Operators,
                         testing::Values(Layout{"even", 5, 3, 21, 13, true, true},
                                         Layout{"rounded along x", 3.1, 3, 25, 13, false, true},
                                         Layout{"rounded along y", 3, 7.7, 13, 19, true, false},
                                         Layout{"rounded both ways", 3.1, 7.7, 25, 19, false, false},
                                         Layout{"of three lines", 1, 40, 3, 81, true, true}));

// Two lines on one another divide by zero, as they do for a matrix.
TEST(FlexibilityOperator, CoincidingLinesDivideByZero) {
    const RectangularMesh mesh = MeshWith(0.004, 1, 21, 3);
    const OffsetGrid grid(mesh);
    EXPECT_EQ(tests::KindOf([&] {
                  FlexibilityOperator(
                      grid, [](Single dx, Single dy) { return PointLayer(dx, dy, 8, 0.25); },
                      std::vector<double>(grid.Nodes(), 1));
              }),
              FailureKind::DivisionByZero);
}

}  // namespace
}  // namespace lithmark::tests
