// The mesh of a loaded circle.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "kernels/elastic/CircleMesh.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

double TotalArea(const CircleMesh& mesh) {
    double area = 0;
    for (const CircleNode& node : mesh) area += node.Area;
    return area;
}

TEST(StressCircleMesh, HasOneNodeMoreThanTheSquareOfTheDivisions) {
    EXPECT_EQ(BuildCircleMesh(5, 2).Upper(), 5);
    EXPECT_EQ(BuildCircleMesh(5, 12).Upper(), 145);
    EXPECT_EQ(BuildCircleMesh(5, 13).Upper(), 170);
}

TEST(StressCircleMesh, CoversTheCircle) {
    for (const int N : {2, 4, 12, 60}) {
        const double area = std::numbers::pi * 25;
        EXPECT_NEAR(TotalArea(BuildCircleMesh(5, N)), area, area * 1e-6) << N;
    }
}

// By hand for a = 6, N = 12: d = 1, seven rings; node 2 on ring 2, node 7 on the edge, node 8 on ring 2 of the next
// spoke at 15 degrees.
TEST(StressCircleMesh, RunsOutwardAlongOneSpokeAfterTheOther) {
    const double pi = std::numbers::pi;
    const CircleMesh mesh = BuildCircleMesh(6, 12);
    EXPECT_EQ(mesh(1).X, 0);
    EXPECT_EQ(mesh(1).Y, 0);
    EXPECT_NEAR(mesh(1).Area, pi / 4, 1e-6);
    EXPECT_EQ(mesh(2).X, 1);
    EXPECT_NEAR(mesh(2).Area, (1.5 * 1.5 - 0.5 * 0.5) * pi / 24, 1e-6);
    EXPECT_EQ(mesh(7).X, 6);
    EXPECT_NEAR(mesh(7).Area, (36 - 5.5 * 5.5) * pi / 24, 1e-6);
    EXPECT_NEAR(mesh(8).X, std::cos(pi / 12), 1e-6);
    EXPECT_NEAR(mesh(8).Y, std::sin(pi / 12), 1e-6);
    EXPECT_NEAR(mesh(145).X, 6 * std::cos(23 * pi / 12), 1e-5);
    EXPECT_NEAR(mesh(145).Y, 6 * std::sin(23 * pi / 12), 1e-5);
}

// N = 3: three and a half rings round to two, so the nodes lie on the edge alone and go one and a half times round.
TEST(StressCircleMesh, OfAnOddNumberOfDivisionsIsBuiltThoughItDoesNotClose) {
    const CircleMesh mesh = BuildCircleMesh(3, 3);
    ASSERT_EQ(mesh.Upper(), 10);
    for (int i = 2; i <= 10; ++i) EXPECT_NEAR(std::hypot(mesh(i).X, mesh(i).Y), 3, 1e-6) << i;
    EXPECT_NEAR(mesh(8).X, mesh(2).X, 1e-5);
    EXPECT_GT(std::abs(TotalArea(mesh) - std::numbers::pi * 9), 1);
    // N = 5: 3.5 rounds to four rings.
    EXPECT_NEAR(std::hypot(double(BuildCircleMesh(5, 5)(4).X), double(BuildCircleMesh(5, 5)(4).Y)), 5, 1e-6);
}

TEST(StressCircleMesh, FailsAtOnceWithMoreNodesThanAnIntegerCounts) {
    EXPECT_EQ(BuildCircleMesh(5, 181).Upper(), 32762);
    EXPECT_EQ(KindOf([] { BuildCircleMesh(5, 182); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { BuildCircleMesh(5, 32000); }), FailureKind::Overflow);
}

TEST(StressCircleMesh, FailsWithoutDivisions) {
    EXPECT_EQ(KindOf([] { BuildCircleMesh(5, 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { BuildCircleMesh(5, -12); }), FailureKind::SubscriptRange);
}

}  // namespace
}  // namespace lithmark::tests
