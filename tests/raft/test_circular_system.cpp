// Influences between the nodes of a circular raft, and the folding of their matrix by symmetry.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/PolarSymmetry.h"
#include "kernels/raft/PolarSystem.h"
#include "raft/CircularProblem.h"
#include "services/numerics/NumericLib.h"

namespace lithmark::tests {
namespace {

const auto kSilent = [](double) {};

// The integral over a whole sector of f(D), D being the square of the distance from the sector's node: midpoint rule
// with cubic substitutions that vanish at the node, where f may have a pole.
double OverSector(const PolarMesh& mesh, int node, const auto& f) {
    constexpr int steps = 400;
    const double g = mesh.NodeRadius(node), half = mesh.dTheta / 2;
    double sum = 0;
    for (const double end : {static_cast<double>(mesh.NodeInner(node)), static_cast<double>(mesh.NodeOuter(node))})
        for (int i = 0; i < steps; ++i)
            for (int j = 0; j < steps; ++j) {
                const double s = (i + 0.5) / steps, t = (j + 0.5) / steps;
                const double r = g + (end - g) * s * s * s, theta = half * t * t * t;
                const double area = std::abs(end - g) * 3 * s * s * half * 3 * t * t / (steps * steps);
                sum += 2 * area * r * f(Square(g - r) + g * r * Square(2 * std::sin(theta / 2)));
            }
    return sum;
}

// Settlement at the distance sqrt(D) of a unit point load on the half-space, at depth h (Boussinesq).
double PointSettlement(double D, double h, double nu, double E) {
    const double S = std::sqrt(D + h * h);
    return (1 + nu) / (2 * kPi * E) * (2 * (1 - nu) / S + h * h / (S * S * S));
}

TEST(PolarInfluence, PointLoads) {
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double nu = 0.3, E = 7000, h = 4;
    const HalfSpaceInfluence halfSpace(mesh, nu, E);
    const LayerInfluence layer(mesh, nu, E, h);
    const MeanStressInfluence stress(mesh, 1, 3);
    for (const auto& [t, i] : {std::pair{1, 2}, {2, 1}, {3, 20}, {30, 5}, {7, 8}}) {
        const double D = Square(mesh.NodeX(t) - mesh.NodeX(i)) + Square(mesh.NodeY(t) - mesh.NodeY(i));
        const double surface = PointSettlement(D, 0, nu, E);
        EXPECT_NEAR(halfSpace.Point(t, i), surface, 1e-6 * surface);
        EXPECT_NEAR(layer.Point(t, i), surface - PointSettlement(D, h, nu, E), 1e-6 * surface);
        // Mean of 3 z^3/(2 pi R^5) over the depth, by a fine sum.
        double mean = 0;
        constexpr int steps = 2000;
        for (int k = 0; k < steps; ++k) {
            const double z = 1 + 2 * (k + 0.5) / steps;
            mean += 3 * z * z * z / (2 * kPi * std::pow(D + z * z, 2.5)) / steps;
        }
        EXPECT_NEAR(stress.Point(t, i), mean, 1e-5 * mean + 1e-7);
    }
}

TEST(PolarInfluence, OwnTermOfTheCentreIsThatOfADisc) {
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double nu = 0.3, E = 7000, h = 4, a = mesh.RingRadius(1), p = 10;
    // Centre of a loaded disc on the half-space: 2 p a (1 - nu^2)/E.
    EXPECT_NEAR(HalfSpaceInfluence(mesh, nu, E).Own(1, p), 2 * p * a * (1 - nu * nu) / E, 1e-8);
    // Less the settlement at depth h, integrated over the disc.
    double deep = 0;
    constexpr int steps = 4000;
    for (int k = 0; k < steps; ++k) {
        const double r = a * (k + 0.5) / steps;
        deep += 2 * kPi * r * a / steps * PointSettlement(r * r, h, nu, E);
    }
    EXPECT_NEAR(LayerInfluence(mesh, nu, E, h).Own(1, p), 2 * p * a * (1 - nu * nu) / E - p * deep, 2e-8);
    EXPECT_NEAR(MeanStressInfluence(mesh, 1, 3).Own(1, p), p * MeanCircleAxisFactor(a, 1, 3), 1e-6);
}

// Four Gauss points a side are good to some per cent next to the pole.
TEST(PolarInfluence, OwnTermOfASector) {
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double nu = 0.3, E = 7000, p = 10;
    const HalfSpaceInfluence halfSpace(mesh, nu, E);
    const MeanStressInfluence stress(mesh, 1, 3);
    for (int k = 2; k <= mesh.NRing; ++k) {
        const double surface = p * OverSector(mesh, k, [&](double D) { return PointSettlement(D, 0, nu, E); });
        EXPECT_NEAR(halfSpace.Own(k, p), surface, 0.05 * surface) << k;
        const double mean = p * OverSector(mesh, k, [](double D) { return MeanPointFactor(std::sqrt(D), 0, 1, 3); });
        EXPECT_NEAR(stress.Own(k, p), mean, 0.01 * mean) << k;
    }
}

// Deliberate: below a sector the layer's own term takes off (2 (1 - nu) I3 + (1 + nu) h^2 I4)/(pi E A), without the
// factor (1 + nu) of the first integral.
TEST(PolarInfluence, SectorOnALayerLacksOnePlusNuInItsFirstDeepTerm) {
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double nu = 0.4, E = 7000, h = 4, p = 10;
    const HalfSpaceInfluence halfSpace(mesh, nu, E);
    const LayerInfluence layer(mesh, nu, E, h);
    for (int k = 2; k <= mesh.NRing; ++k) {
        const double I3 = OverSector(mesh, k, [&](double D) { return 1 / std::sqrt(D + h * h); }) / 2;
        const double I4 = OverSector(mesh, k, [&](double D) { return std::pow(D + h * h, -1.5); }) / 2;
        const double deep = p * (2 * (1 - nu) * I3 + (1 + nu) * h * h * I4) / (kPi * E);
        EXPECT_NEAR(halfSpace.Own(k, p) - layer.Own(k, p), deep, 1e-5 * deep) << k;
        const double theory = p * OverSector(mesh, k, [&](double D) { return PointSettlement(D, h, nu, E); });
        EXPECT_NEAR(theory - deep, p * nu * 2 * (1 - nu) * I3 / (kPi * E), 1e-4 * theory) << k;
    }
    // Without lateral strain the factor is 1 and both agree.
    const LayerInfluence confined(mesh, 0, E, h);
    const double theory = p * OverSector(mesh, 3, [&](double D) { return PointSettlement(D, h, 0, E); });
    EXPECT_NEAR(HalfSpaceInfluence(mesh, 0, E).Own(3, p) - confined.Own(3, p), theory, 1e-5 * theory);
}

TEST(PolarInfluence, OneNodeOnAnotherFails) {
    PolarMesh mesh = BuildPolarMesh(4, 5);
    mesh.NodeX(3) = mesh.NodeX(2);
    mesh.NodeY(3) = mesh.NodeY(2);
    EXPECT_THROW(HalfSpaceInfluence(mesh, 0.3, 7000).Point(2, 3), Failure);
    EXPECT_THROW(LayerInfluence(mesh, 0.3, 7000, 4).Point(2, 3), Failure);
}

PolarFlexibility PolarFlexibilityOf(const PolarMesh& mesh, const PolarInfluence& influence) {
    PolarFlexibility flexibility(mesh);
    flexibility.Add(1, influence, kSilent);
    return flexibility;
}

// The columns that rotation gives are what working them out gives.
TEST(PolarSystem, RotationFillsTheOtherColumns) {
    for (int nd : {2, 4, 6, 12}) {
        const PolarMesh mesh = BuildPolarMesh(nd, 5);
        const LayerInfluence influence(mesh, 0.25, 5000, 5);
        const HalfSpaceInfluence surface(mesh, 0.25, 5000);
        const PolarFlexibility flexibility = PolarFlexibilityOf(mesh, influence);
        for (int r = 1; r <= mesh.NTotal; ++r)
            for (int c = 1; c <= mesh.NTotal; ++c) {
                // A layer's term is the difference of two: it is good to the digits of the first.
                const double size = r == c ? surface.Own(RingOf(mesh, c), 1 / mesh.NodeArea(c)) : surface.Point(r, c);
                const double direct =
                    r == c ? influence.Own(RingOf(mesh, c), 1 / mesh.NodeArea(c)) : influence.Point(r, c);
                ASSERT_NEAR(flexibility(r, c), direct, 1e-5 * size) << nd << ": " << r << ", " << c;
            }
    }
}

// For symmetric forces the folded matrix gives the settlements that the whole matrix gives.
TEST(PolarSystem, FoldedMatrixActsAsTheWholeOnSymmetricForces) {
    for (int nd : {2, 4, 6, 12})
        for (const LoadCase k : {LoadCase::AlongX, LoadCase::Central}) {
            const PolarMesh mesh = BuildPolarMesh(nd, 5);
            const MeanStressInfluence influence(mesh, 0, 4);
            const PolarFlexibility flexibility = PolarFlexibilityOf(mesh, influence);
            const int m = FoldedSize(mesh, k);
            EXPECT_EQ(m, k == LoadCase::AlongX ? mesh.NHalf : mesh.NQuarter);
            Array<Single> force(1, mesh.NTotal);
            for (int i = 1; i <= m; ++i) force(i) = 100 + 7 * i % 31;
            CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, k == LoadCase::AlongX ? 1 : 0, force);
            const Matrix<Single> folded = FoldFlexibility(flexibility, k);
            for (int r = 1; r <= m; ++r) {
                double whole = 0, part = 0;
                for (int c = 1; c <= mesh.NTotal; ++c) whole += flexibility(r, c) * force(c);
                for (int c = 1; c <= m; ++c) part += folded(r, c) * force(c);
                ASSERT_NEAR(part, whole, 2e-5 * whole) << nd << " row " << r;
            }
        }
}

// Each weight is the number of nodes that symmetry makes of the unknown.
TEST(PolarSystem, WeightsCountTheNodesOfTheRaft) {
    for (int nd : {2, 4, 6, 12, 20})
        for (const LoadCase k : {LoadCase::AlongX, LoadCase::Central}) {
            const PolarMesh mesh = BuildPolarMesh(nd, 5);
            const int m = FoldedSize(mesh, k);
            const Array<Single> weight = FoldedWeights(mesh, k);
            for (int i = 1; i <= m; ++i) {
                Array<Single> one(1, mesh.NTotal);
                one(i) = 1;
                CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, k == LoadCase::AlongX ? 1 : 0, one);
                EXPECT_EQ(weight(i), SumOf(one)) << nd << " node " << i;
            }
        }
}

// Deliberate: with an odd ND the ray at 90 degrees does not exist, and the ray whose number equals NRing is weighted as
// an axis all the same.
TEST(PolarSystem, AnOddNDWeighsTheRayOfTheRingCountAsAnAxis) {
    const PolarMesh mesh = BuildPolarMesh(7, 5);
    const Array<Single> weight = FoldedWeights(mesh, LoadCase::Central);
    for (int i = 2; i <= mesh.NQuarter; ++i)
        EXPECT_EQ(weight(i), mesh.NodeRay(i) == 1 || mesh.NodeRay(i) == mesh.NRing ? 2 : 4);
    EXPECT_GT(mesh.NodeX(1 + 3 * mesh.NRing), 0.1);  // ray 4 of 7, well before 90 degrees
}

}  // namespace
}  // namespace lithmark::tests
