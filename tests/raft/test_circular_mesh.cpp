// The polar mesh of the circular raft.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <utility>

#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/PlotElements.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

// By hand for two divisions and R = 1: a disc of half the area, and four sectors of a quarter of the rest each.
TEST(PolarMesh, TwoDivisionsByHand) {
    const PolarMesh mesh = BuildPolarMesh(2, 1);
    EXPECT_EQ(mesh.NTotal, 5);
    EXPECT_EQ(mesh.NRing, 2);
    EXPECT_EQ(mesh.NHalf, 4);
    EXPECT_EQ(mesh.NQuarter, 3);
    EXPECT_NEAR(mesh.dTheta, kPi / 2, 1e-6);
    EXPECT_NEAR(mesh.RingRadius(1), std::sqrt(0.5), 1e-7);
    EXPECT_EQ(mesh.RingRadius(2), 1);
    EXPECT_NEAR(mesh.RingWidth(2), 1 - std::sqrt(0.5), 1e-7);
    EXPECT_NEAR(mesh.NodeArea(1), kPi / 2, 1e-6);
    const double centroid = 2.0 / 3.0 * (1 - std::pow(0.5, 1.5)) / 0.5;
    const double x[] = {0, centroid, 0, -centroid, 0};
    const double y[] = {0, 0, centroid, 0, -centroid};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_NEAR(mesh.NodeX(i), x[i - 1], 1e-6) << i;
        EXPECT_NEAR(mesh.NodeY(i), y[i - 1], 1e-6) << i;
        if (i > 1) {
            EXPECT_NEAR(mesh.NodeArea(i), kPi / 8, 1e-6) << i;
        }
    }
}

// ND divisions: ND^2 + 1 nodes on 2 ND rays; a half has ND + 1 of the rays, a quarter ND/2 + 1.
TEST(PolarMesh, CountsFollowTheRays) {
    for (int nd : {2, 4, 6, 12, 20, 50, 180}) {
        const PolarMesh mesh = BuildPolarMesh(nd, 3);
        EXPECT_EQ(mesh.NRing, nd / 2 + 1);
        EXPECT_EQ(mesh.NTotal, 1 + 2 * nd * (mesh.NRing - 1));
        EXPECT_EQ(mesh.NHalf, 1 + (nd + 1) * (mesh.NRing - 1));
        EXPECT_EQ(mesh.NQuarter, 1 + (nd / 2 + 1) * (mesh.NRing - 1));
    }
}

TEST(PolarMesh, RingsHaveEqualAreasThatFillTheCircle) {
    for (int nd : {2, 4, 12, 40}) {
        const double R = 5;
        const PolarMesh mesh = BuildPolarMesh(nd, R);
        double sum = 0;
        for (int i = 1; i <= mesh.NTotal; ++i) sum += mesh.NodeArea(i);
        EXPECT_NEAR(sum, kPi * R * R, 1e-5 * kPi * R * R);
        for (int k = 2; k <= mesh.NRing; ++k)
            EXPECT_NEAR(2 * nd * mesh.RingArea(k), mesh.RingArea(1), 2e-5 * mesh.RingArea(1)) << nd << " ring " << k;
        EXPECT_EQ(mesh.RingRadius(mesh.NRing), R);
    }
}

// A node's area is that of its sector, and it stands at the radius 2/3 (b^3 - a^3)/(b^2 - a^2) in the sector's middle.
TEST(PolarMesh, NodesStandInTheMiddleOfTheirSectors) {
    const PolarMesh mesh = BuildPolarMesh(12, 5);
    for (int i = 2; i <= mesh.NTotal; ++i) {
        const double a = mesh.NodeInner(i), b = mesh.NodeOuter(i);
        const double dTheta = mesh.NodeTheta2(i) - mesh.NodeTheta1(i);
        EXPECT_NEAR(dTheta, kPi / 12, 3e-6);
        EXPECT_NEAR(mesh.NodeArea(i), (b * b - a * a) / 2 * dTheta, 2e-5 * mesh.NodeArea(i)) << i;
        const double g = 2.0 / 3.0 * (b * b * b - a * a * a) / (b * b - a * a);
        const double middle = (mesh.NodeTheta1(i) + mesh.NodeTheta2(i)) / 2;
        EXPECT_NEAR(mesh.NodeX(i), g * std::cos(middle), 1e-5);
        EXPECT_NEAR(mesh.NodeY(i), g * std::sin(middle), 1e-5);
        EXPECT_NEAR(mesh.NodeRadius(i), g, 2e-6);
        EXPECT_NEAR(middle, (i - 2) / (mesh.NRing - 1) * kPi / 12, 1e-5);
    }
}

TEST(PolarMesh, RaysAreCountedTwice) {
    const PolarMesh mesh = BuildPolarMesh(4, 2);
    EXPECT_EQ(mesh.NodeRay(1), 1);
    int node = 2;
    for (int turn = 0; turn < 2; ++turn)
        for (int ray = 1; ray <= 4; ++ray)
            for (int k = 1; k < mesh.NRing; ++k) EXPECT_EQ(mesh.NodeRay(node++), ray);
    EXPECT_EQ(node - 1, mesh.NTotal);
    // The ray whose number equals the ring count is the one at 90 degrees: there the quarter ends.
    EXPECT_EQ(mesh.NodeRay(mesh.NQuarter), mesh.NRing);
    EXPECT_NEAR(mesh.NodeX(mesh.NQuarter), 0, 1e-6);
    EXPECT_EQ(mesh.NodeRay(mesh.NHalf), 1);
    EXPECT_NEAR(mesh.NodeX(mesh.NHalf), -mesh.NodeX(mesh.NRing), 1e-6);
}

TEST(PolarMesh, TheNodeCountDoesNotDependOnTheRadius) {
    const PolarMesh small = BuildPolarMesh(12, 0.5);
    const PolarMesh large = BuildPolarMesh(12, 50);
    EXPECT_EQ(small.NTotal, large.NTotal);
    for (int k = 1; k <= small.NRing; ++k) EXPECT_NEAR(large.RingRadius(k), 100 * small.RingRadius(k), 1e-4);
}

// Signed area by the corners in the order in which they run round the element.
double SignedArea(const PolarMesh& mesh, const RaftElement& element) {
    const int round[] = {element.Nodes[0], element.Nodes[1], element.Count == 4 ? element.Nodes[3] : element.Nodes[2],
                         element.Nodes[2]};
    double area = 0;
    for (int k = 0; k < element.Count; ++k) {
        const int p = round[k], q = round[(k + 1) % element.Count];
        area += (mesh.NodeX(p) * mesh.NodeY(q) - mesh.NodeX(q) * mesh.NodeY(p)) / 2;
    }
    return area;
}

// The elements cover the polygon of the outermost nodes once, and each inner edge is shared by two of them.
TEST(PolarMesh, PlotElementsTileThePolygon) {
    for (int nd : {2, 4, 12}) {
        const PolarMesh mesh = BuildPolarMesh(nd, 5);
        const auto elements = PlotElements(mesh);
        ASSERT_EQ(static_cast<int>(elements.size()), mesh.NTotal - 1);
        double area = 0;
        std::map<std::set<int>, int> edges;
        int triangles = 0;
        for (const RaftElement& element : elements) {
            const double own = SignedArea(mesh, element);
            EXPECT_GT(own, 0);
            area += own;
            if (element.Count == 3) ++triangles;
            const int* c = element.Nodes;
            const bool quad = element.Count == 4;
            for (auto [p, q] : {std::pair{c[0], c[1]}, std::pair{c[1], quad ? c[3] : c[2]},
                                std::pair{quad ? c[3] : c[2], c[2]}, std::pair{c[2], c[0]}})
                if (p != q) ++edges[{p, q}];
        }
        EXPECT_EQ(triangles, 2 * nd);
        const double g = mesh.NodeRadius(mesh.NRing);
        EXPECT_NEAR(area, nd * g * g * std::sin(kPi / nd), 1e-4 * area);
        int border = 0;
        for (const auto& [edge, count] : edges) {
            EXPECT_LE(count, 2);
            border += count == 1;
        }
        EXPECT_EQ(border, 2 * nd);
    }
}

TEST(PolarMesh, CornerOrderOfTheElements) {
    const PolarMesh mesh = BuildPolarMesh(4, 5);  // two nodes a ray
    const auto elements = PlotElements(mesh);
    const auto corners = [](const RaftElement& e) { return std::vector<int>(e.Nodes, e.Nodes + e.Count); };
    EXPECT_EQ(corners(elements[0]), (std::vector{1, 2, 4}));
    EXPECT_EQ(corners(elements[1]), (std::vector{2, 3, 4, 5}));
    EXPECT_EQ(corners(elements[14]), (std::vector{1, 16, 2}));
    EXPECT_EQ(corners(elements[15]), (std::vector{16, 17, 2, 3}));
}

TEST(PolarMesh, MoreNodesThanAnIntegerCountsFails) {
    EXPECT_EQ(BuildPolarMesh(181, 1).NTotal, 32762);
    for (int nd : {182, 1000, 32000}) {
        try {
            BuildPolarMesh(nd, 1);
            FAIL() << nd;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
        }
    }
}

TEST(PolarMesh, NoDivisionsAndNoRadiusFail) {
    EXPECT_THROW(BuildPolarMesh(0, 1), Failure);
    EXPECT_THROW(BuildPolarMesh(-2, 1), Failure);
    EXPECT_THROW(BuildPolarMesh(-4, 1), Failure);
    EXPECT_THROW(BuildPolarMesh(12, 0), Failure);
}

// The preferences keep the divisions even. An odd number in a hand-written file runs or fails by its bounds.
TEST(PolarMesh, OddDivisionsRunOrFailButNeverCrash) {
    // 3/2 + 1 = 2.5 and 7/2 + 1 = 4.5 round to the even number, so the rays fall short of the nodes.
    EXPECT_EQ(BuildPolarMesh(3, 1).NRing, 2);
    EXPECT_EQ(BuildPolarMesh(7, 1).NRing, 4);
    EXPECT_EQ(PlotElements(BuildPolarMesh(7, 1)).size(), 42U);
    // 5/2 + 1 = 3.5 rounds up, and the last rays need nodes that are not there.
    EXPECT_EQ(BuildPolarMesh(5, 1).NRing, 4);
    EXPECT_THROW(PlotElements(BuildPolarMesh(5, 1)), Failure);
    EXPECT_THROW(PlotElements(BuildPolarMesh(1, 1)), Failure);
}

}  // namespace
}  // namespace lithmark::tests
