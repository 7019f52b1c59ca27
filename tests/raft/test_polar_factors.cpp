// The sector's effect on its centroid against fine integration, and the copies by symmetry.
#include <gtest/gtest.h>

#include <limits>

#include "kernels/elastic/LayerFactors.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/GridElements.h"
#include "kernels/raft/PolarSymmetry.h"
#include "kernels/raft/SectorIntegral.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

constexpr double kPolarEpsilon = std::numeric_limits<Single::Storage>::epsilon();

double CentroidRadius(double r1, double r2) {
    return 2 * (r2 * r2 * r2 - r1 * r1 * r1) / (3 * (r2 * r2 - r1 * r1));
}

// A function of the distance from the centroid over half a sector, by the midpoint rule; cubic substitutions in r and
// theta, which vanish at the centroid, take the pole away.
double OverHalfSector(double r1, double r2, double dTheta, auto&& f) {
    constexpr int steps = 600;
    const double rc = CentroidRadius(r1, r2);
    double sum = 0;
    for (const double end : {r1, r2}) {
        for (int i = 0; i < steps; ++i) {
            const double u = (i + 0.5) / steps;
            const double dr = (end - rc) * u * u * u, r = rc + dr;
            for (int j = 0; j < steps; ++j) {
                const double v = (j + 0.5) / steps;
                const double half = dTheta / 4 * v * v * v;  // of theta
                const double chord = 2 * std::sin(half);
                const double distance = std::sqrt(dr * dr + rc * r * chord * chord);
                sum += f(distance) * r * std::abs(end - rc) * 3 * u * u * dTheta / 2 * 3 * v * v;
            }
        }
    }
    return sum / (steps * steps);
}

struct Sector {
    double r1, r2, dTheta;
};
const Sector kSectors[] = {{1, 1.3, kPi / 12}, {1, 2, kPi / 6}, {4, 4.4, kPi / 12}, {0.5, 1.5, kPi / 4}};

TEST(SectorKernel, HasTheKindsOfItsTable) {
    // By hand: r0 = 2, r = 3, cos theta = 1/2: D = 4 + 9 - 6 = 7; z = 3: D + z^2 = 16.
    const Single theta = kPi / 3;
    EXPECT_NEAR(SectorKernel(2, 3, theta, 3, 0), 3.0 / 1024, kPolarEpsilon);
    EXPECT_NEAR(SectorKernel(2, 3, theta, 3, 2), 3 / std::sqrt(7), 4 * kPolarEpsilon);
    EXPECT_NEAR(SectorKernel(2, 3, theta, 3, 3), 0.75, 4 * kPolarEpsilon);
    EXPECT_NEAR(SectorKernel(2, 3, theta, 3, 4), 3.0 / 64, kPolarEpsilon);
    EXPECT_EQ(SectorKernel(2, 3, theta, 3, 1), 0.0);
    EXPECT_EQ(SectorKernel(2, 3, theta, 3, 5), 0.0);
    EXPECT_EQ(SectorKernel(2, 3, theta, 3, -1), 0.0);
    EXPECT_EQ(KindOf([] { SectorKernel(2, 2, 0, 0, 2); }), FailureKind::DivisionByZero);
}

TEST(SectorIntegral, IsExactWhereTheIntegrandIsSmooth) {
    for (const auto& [r1, r2, dTheta] : kSectors) {
        const double z = 4;
        const auto root = [z](double d) { return std::sqrt(d * d + z * z); };
        EXPECT_NEAR(SectorIntegral(r1, r2, dTheta, z, 3) /
                        OverHalfSector(r1, r2, dTheta, [&](double d) { return 1 / root(d); }),
                    1, 1e-5);
        EXPECT_NEAR(SectorIntegral(r1, r2, dTheta, z, 4) /
                        OverHalfSector(r1, r2, dTheta, [&](double d) { return std::pow(root(d), -3); }),
                    1, 1e-5);
        EXPECT_NEAR(SectorIntegral(r1, r2, dTheta, z, 0) /
                        OverHalfSector(r1, r2, dTheta, [&](double d) { return std::pow(root(d), -5); }),
                    1, 1e-5);
    }
}

TEST(SectorIntegral, IsCloseAtThePole) {
    for (const auto& [r1, r2, dTheta] : kSectors) {
        const double exact = OverHalfSector(r1, r2, dTheta, [](double d) { return 1 / d; });
        EXPECT_NEAR(SectorIntegral(r1, r2, dTheta, 0, 2) / exact, 1, 0.04) << r1 << ' ' << r2;
        EXPECT_EQ(SectorIntegral(r1, r2, dTheta, 0, 3), SectorIntegral(r1, r2, dTheta, 0, 2));
    }
}

TEST(SectorIntegral, HoldsTheAreaInItsMapping) {
    // From far below, r/(D + z^2)^(1/2) is r/z: half the sector's area over z.
    for (const auto& [r1, r2, dTheta] : kSectors) {
        const double z = 1e5;
        EXPECT_NEAR(SectorIntegral(r1, r2, dTheta, z, 3) * z / ((r2 * r2 - r1 * r1) * dTheta / 4), 1,
                    8 * kPolarEpsilon + 1e-9);
    }
    EXPECT_EQ(KindOf([] { SectorIntegral(1, 1, 0.2, 1, 3); }), FailureKind::DivisionByZero);
}

TEST(MeanSectorFactor, IsThePointFactorOverTheSector) {
    for (const auto& [r1, r2, dTheta] : kSectors) {
        for (const auto& [z1, z2] : {std::pair{0.0, 2.0}, {0.0, 10.0}, {2.0, 4.0}, {2.0, 12.0}}) {
            const auto mean = [z1 = z1, z2 = z2](double d) {
                const auto term = [d](double z) {
                    const double R = std::sqrt(d * d + z * z);
                    return d * d / (R * R * R) - 3 / R;
                };
                return (term(z2) - term(z1)) / ((z2 - z1) * 2 * kPi);
            };
            const double exact = 2 * OverHalfSector(r1, r2, dTheta, mean);
            // The pole at the surface costs up to 4 % of its term; below, rounding of the two depths' terms is left.
            const double tolerance = z1 == 0 ? 0.04 * exact : 1e-4 * exact + 1e-6;
            EXPECT_NEAR(MeanSectorFactor(r1, r2, dTheta, z1, z2), exact, tolerance) << r1 << ' ' << z1 << ' ' << z2;
        }
    }
    EXPECT_EQ(KindOf([] { MeanSectorFactor(1, 2, 0.2, 3, 3); }), FailureKind::DivisionByZero);
}

TEST(BuildGridElements, ListsCellsRowByRow) {
    // 3 by 2 cells, numbered along i; node (4, 3) is missing.
    Matrix<Integer> active(4, 3), nodeNo(4, 3);
    int number = 0;
    for (int j = 1; j <= 3; ++j) {
        for (int i = 1; i <= 4; ++i) {
            active(i, j) = i == 4 && j == 3 ? 0 : 1;
            nodeNo(i, j) = ++number;
        }
    }
    Integer count = 99;
    Array<Integer> n1, n2, n3, n4;
    BuildGridElements(count, 3, 2, active, nodeNo, n1, n2, n3, n4);
    EXPECT_EQ(count, 5);
    const int expected[][4] = {{1, 2, 5, 6}, {2, 3, 6, 7}, {3, 4, 7, 8}, {5, 6, 9, 10}, {6, 7, 10, 11}};
    ASSERT_EQ(n1.Upper(), 5);
    ASSERT_EQ(n4.Upper(), 5);
    for (int e = 1; e <= 5; ++e) {
        EXPECT_EQ(n1(e), expected[e - 1][0]);
        EXPECT_EQ(n2(e), expected[e - 1][1]);
        EXPECT_EQ(n3(e), expected[e - 1][2]);
        EXPECT_EQ(n4(e), expected[e - 1][3]);
    }
}

TEST(BuildGridElements, FailsBeyondItsCounter) {
    Matrix<Integer> active(201, 201), nodeNo(201, 201);
    for (Integer& flag : active.Items()) flag = 1;
    Integer count = 0;
    Array<Integer> n1, n2, n3, n4;
    EXPECT_EQ(KindOf([&] { BuildGridElements(count, 200, 200, active, nodeNo, n1, n2, n3, n4); }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([&] { BuildGridElements(count, 201, 1, active, nodeNo, n1, n2, n3, n4); }),
              FailureKind::SubscriptRange);
}

TEST(MirrorProfile, GivesTheDiameterFromTheCentreToTheEdge) {
    Array<Single> values = Array<Single>::Of({1, 2, 3, 0, 0});
    MirrorProfile(5, 3, values);
    const double expected[] = {3, 2, 1, 2, 3};
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(values(i), expected[i - 1]);

    Array<Single> one = Array<Single>::Of({7});
    MirrorProfile(1, 1, one);
    EXPECT_EQ(one(1), 7.0);
}

// The mesh adds up its angles ray by ray, so nodes that mirror each other differ by some rounding.
constexpr double kMirrorTolerance = 500 * kPolarEpsilon;

TEST(CopyBySymmetry, FillsTheOtherQuartersOfACentralLoad) {
    for (const int nd : {2, 4, 6, 12}) {
        const PolarMesh mesh = BuildPolarMesh(nd, 5);
        const auto value = [&](int i) { return std::abs(mesh.NodeX(i)) + 3 * std::abs(mesh.NodeY(i)); };
        Array<Single> values(1, mesh.NTotal);
        for (int i = 1; i <= mesh.NQuarter; ++i) values(i) = value(i);
        CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, 0, values);
        for (int i = 1; i <= mesh.NTotal; ++i) EXPECT_NEAR(values(i), value(i), kMirrorTolerance) << nd << ", " << i;
    }
}

TEST(CopyBySymmetry, LeavesTheGivenHalfOfAnEccentricLoad) {
    for (const int nd : {2, 4, 6, 12}) {
        const PolarMesh mesh = BuildPolarMesh(nd, 5);
        const auto value = [&](int i) { return mesh.NodeX(i) + 3 * std::abs(mesh.NodeY(i)); };
        Array<Single> values(1, mesh.NTotal);
        for (int i = 1; i <= mesh.NHalf; ++i) values(i) = value(i);
        const Array<Single> given = values;
        CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, 0.5, values);
        for (int i = 1; i <= mesh.NHalf; ++i) EXPECT_EQ(values(i), given(i));
        for (int i = 1; i <= mesh.NTotal; ++i) EXPECT_NEAR(values(i), value(i), kMirrorTolerance) << nd << ", " << i;
    }
}

}  // namespace
}  // namespace lithmark::tests
