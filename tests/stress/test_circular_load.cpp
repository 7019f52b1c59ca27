// The circular load against closed forms on its axis and integrals of the point load, and what of it is deliberate.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

#include "kernels/elastic/CircularLoad.h"
#include "stress/StressCase.h"
#include "support/Files.h"
#include "support/Pi.h"

namespace lithmark::tests {
namespace {

constexpr double kRadius = 3;
constexpr int kFine = 180;  // the finest even mesh

class CircularLoad : public testing::Test {
  protected:
    void SetUp() override { ResetSession(); }
};

StressResults SolveCircle(int divisions, double x, double y, double z, double nu = kNue) {
    Session.PrefND = divisions;
    return Solve(CircleAt(x, y, z, kRadius, nu));
}

// Closed forms on the axis (Boussinesq 1885; Foster and Ahlvin 1954), q = z/sqrt(a2 + z2).
double AxisSigmaZ(double z) {
    return kP * (1 - std::pow(1 + kRadius * kRadius / (z * z), -1.5));
}
double AxisSigmaR(double z, double nu) {
    const double q = z / std::hypot(kRadius, z);
    return kP / 2 * (1 + 2 * nu - 2 * (1 + nu) * q + q * q * q);
}
double AxisW(double z, double nu) {
    const double root = std::hypot(kRadius, z);
    return 100 * kP * (1 + nu) / kEs * (2 * (1 - nu) * (root - z) + z * (1 - z / root));
}

// Published: 0.6465 p on the axis at the depth of one radius, 0.2845 p at two (Foster and Ahlvin 1954).
TEST_F(CircularLoad, HasThePublishedStressOnItsAxis) {
    EXPECT_NEAR(AxisSigmaZ(kRadius) / kP, 0.6464, 0.0002);
    EXPECT_NEAR(SolveCircle(kFine, 0, 0, kRadius).Sigma_z / kP, 0.646, 0.001);
    EXPECT_NEAR(SolveCircle(kFine, 0, 0, 2 * kRadius).Sigma_z / kP, 0.2845, 0.0005);
}

// Theory, with the error of the mesh: per cent of p at the default mesh, hundredths of that at the finest.
TEST_F(CircularLoad, OnItsAxisComesNearTheClosedFormsWithTheMesh) {
    for (const double z : {0.5 * kRadius, kRadius, 2 * kRadius}) {
        SCOPED_TRACE(z);
        const StressResults coarse = SolveCircle(12, 0, 0, z), fine = SolveCircle(kFine, 0, 0, z);
        EXPECT_NEAR(coarse.Sigma_z, AxisSigmaZ(z), 0.01 * kP);
        EXPECT_NEAR(fine.Sigma_z, AxisSigmaZ(z), 0.0001 * kP);
        EXPECT_NEAR(coarse.Sigma_x, AxisSigmaR(z, kNue), 0.01 * kP);
        EXPECT_NEAR(fine.Sigma_x, AxisSigmaR(z, kNue), 0.0001 * kP);
        EXPECT_NEAR(fine.Sigma_y, AxisSigmaR(z, kNue), 0.0001 * kP);
        EXPECT_NEAR(coarse.w, AxisW(z, kNue), 0.01 * AxisW(0, kNue));
        EXPECT_NEAR(fine.w, AxisW(z, kNue), 0.0002 * AxisW(0, kNue));
        EXPECT_NEAR(fine.s, AxisW(0, kNue) - AxisW(z, kNue), 0.0002 * AxisW(0, kNue));
    }
}

// Theory: 2 p a (1 - nu2)/E at the centre of the surface, 2/pi of it at the edge.
TEST_F(CircularLoad, HasTheSurfaceDisplacementOfAFlexibleCircle) {
    const double centre = 100 * 2 * kP * kRadius * (1 - kNue * kNue) / kEs;
    EXPECT_NEAR(SolveCircle(12, 0, 0, 0).w, centre, 0.02 * centre);
    EXPECT_NEAR(SolveCircle(kFine, 0, 0, 0).w, centre, 0.001 * centre);
    EXPECT_NEAR(SolveCircle(kFine, kRadius, 0, 0).w, centre * 2 / kPi, 0.002 * centre);
}

// Theory: integral of Boussinesq's solution, off the axis and in all quadrants: here shears and horizontal
// displacements keep their direction.
TEST_F(CircularLoad, OffItsAxisComesNearTheIntegratedPointLoad) {
    for (const auto& [x, y, z] :
         {std::tuple{1.3, 0.8, 2.0}, {-1.3, 0.8, 2.0}, {4.0, -2.0, 3.0}, {-5.0, -0.4, 2.5}, {0.3, 5.1, 4.0}}) {
        SCOPED_TRACE(testing::Message() << x << ", " << y << ", " << z);
        const Theory theory = CircleTheory(x, y, z, kP, kRadius, kNue, kEs);
        const StressResults fine = SolveCircle(kFine, x, y, z);
        ExpectStressesNear(fine, theory, kP, 0.0003);
        EXPECT_NEAR(fine.u, 100 * theory.u, 0.0002 * 100 * theory.w);
        EXPECT_NEAR(fine.v, 100 * theory.v, 0.0002 * 100 * theory.w);
        EXPECT_NEAR(fine.w, 100 * theory.w, 0.0002 * 100 * theory.w);
        ExpectStressesNear(SolveCircle(12, x, y, z), theory, kP, 0.01);
    }
}

// Deliberate: the shears leave out every element straight north, south, east or west of the point, though it has a part
// in one of them. Seen from the y axis these are the elements of the spokes along it; their part of Tau_yz, by hand:
// point loads p A at 0 and at +- r for the radii r of the rings.
TEST_F(CircularLoad, LeavesOutOfItsShearsWhatIsStraightNorthOrSouth) {
    const double y = 4.5, z = 2, d = kRadius / 6;
    double missing = PointTheory(0, y, z, kP * d * d * kPi / 4, kNue, kEs).Tau_yz;
    for (int ring = 1; ring <= 6; ++ring) {
        const double r = ring * d, outer = ring < 6 ? r + d / 2 : r, inner = r - d / 2;
        const double load = kP * (outer * outer - inner * inner) * kPi / 24;
        missing += PointTheory(0, y - r, z, load, kNue, kEs).Tau_yz + PointTheory(0, y + r, z, load, kNue, kEs).Tau_yz;
    }
    const double theory = CircleTheory(0, y, z, kP, kRadius, kNue, kEs).Tau_yz;
    EXPECT_GT(missing, 0.005 * kP);
    EXPECT_NEAR(SolveCircle(12, 0, y, z).Tau_yz, theory - missing, 0.001 * kP);
}

// Deliberate: for v an element less than a millimetre east or west counts as straight north or south, and its whole
// outward displacement goes into v. By hand with two divisions: the centre 0.9 mm and 1.1 mm away, and four elements on
// the edge.
TEST_F(CircularLoad, TakesTheWholeDisplacementOfAnElementNearlyNorthForV) {
    const double x = 0.0009, y = 0.0011, z = 0.002;
    const auto load = [](double outer, double inner) { return kP * kPi * (outer * outer - inner * inner); };
    const Theory centre = PointTheory(x, y, z, load(kRadius / 2, 0), kNue, kEs);
    double expected = std::hypot(centre.u, centre.v);
    for (const auto& [nodeX, nodeY] : {std::pair{kRadius, 0.0}, {0.0, kRadius}, {-kRadius, 0.0}, {0.0, -kRadius}})
        expected += PointTheory(x - nodeX, y - nodeY, z, load(kRadius, kRadius / 2) / 4, kNue, kEs).v;
    EXPECT_NEAR(SolveCircle(2, x, y, z).v, 100 * expected, 100 * std::abs(expected) * 1e-4);
    EXPECT_GT(std::abs(centre.v / std::hypot(centre.u, centre.v) - 1), 0.1);
}

// Theory: far away the circle is a point load of p pi a2.
TEST_F(CircularLoad, FarAwayIsAPointLoad) {
    const Theory theory = PointTheory(30, 40, 60, kP * kPi * kRadius * kRadius, kNue, kEs);
    const StressResults r = SolveCircle(12, 30, 40, 60);
    EXPECT_NEAR(r.Sigma_z, theory.Sigma_z, 0.005 * theory.Sigma_z);
    EXPECT_NEAR(r.w, 100 * theory.w, 0.005 * 100 * theory.w);
}

// Law: settlement and displacement in the depth add up to the displacement of the surface under the same mesh.
TEST_F(CircularLoad, SettlementAndDisplacementAddUpToTheSurfaceDisplacement) {
    for (const double x : {0.0, 1.1, 5.0}) {
        const double surface = SolveCircle(12, x, 0.4, 0).w;
        const StressResults r = SolveCircle(12, x, 0.4, 2);
        EXPECT_NEAR(r.w + r.s, surface, surface * 2e-5);
    }
}

// Law: symmetry of the mesh in x and y turns the signs of shears and horizontal displacements.
TEST_F(CircularLoad, TurnsTheDirectionsOfAMirrorImage) {
    const StressResults r = SolveCircle(12, 1.3, 0.8, 2), m = SolveCircle(12, -1.3, 0.8, 2);
    EXPECT_NEAR(m.Tau_xz, -r.Tau_xz, 1e-4);
    EXPECT_NEAR(m.Tau_xy, -r.Tau_xy, 1e-4);
    EXPECT_NEAR(m.Tau_yz, r.Tau_yz, 1e-4);
    EXPECT_NEAR(m.u, -r.u, 1e-5);
    EXPECT_NEAR(m.v, r.v, 1e-5);
    EXPECT_NEAR(m.Sigma_x, r.Sigma_x, 1e-4);
    EXPECT_GT(std::abs(r.Tau_xz), 1);
}

TEST_F(CircularLoad, OnItsAxisHasNeitherShearNorHorizontalDisplacement) {
    const StressResults r = SolveCircle(12, 0, 0, 2);
    for (const double value : {r.Tau_xy, r.Tau_xz, r.Tau_yz, r.u, r.v}) EXPECT_NEAR(value, 0, 1e-4);
}

// Theory: right above the point the element is a disc of equal area. Near the surface that disc gives p, where its load
// as a point load would give p A 3/(2 pi z2), many times as much.
TEST_F(CircularLoad, TakesTheElementRightAboveThePointForADisc) {
    const double z = 0.01;
    for (const double x : {0.0, 0.5, 1.5, -2.5}) EXPECT_NEAR(SolveCircle(12, x, 0, z).Sigma_z, kP, 0.02 * kP) << x;
    // The outermost nodes carry their inner half alone.
    EXPECT_NEAR(SolveCircle(12, kRadius, 0, z).Sigma_z, kP, 0.1 * kP);
    // Half a ring's width away from a node no element is near.
    EXPECT_LT(SolveCircle(12, 0.75, 0, z).Sigma_z, 0.01 * kP);
}

TEST_F(CircularLoad, OnTheSurfaceIsThatOfTheDepth1e10) {
    for (const double x : {0.0, 0.5, 0.7, 4.0}) EXPECT_EQ(SolveCircle(12, x, 0.2, 0), SolveCircle(12, x, 0.2, 1e-10));
}

TEST_F(CircularLoad, TakesItsRadiusFromTheCopyOfA) {
    Session.PrefND = 12;
    SoilStressInput in = CircleAt(1, 0, 2, 5);
    Session.A0 = kRadius;
    SolveSoilStress(in);
    EXPECT_EQ(ResultsOfSession(), SolveCircle(12, 1, 0, 2));
}

TEST_F(CircularLoad, RunsWithAnOddNumberOfDivisions) {
    EXPECT_TRUE(std::isfinite(SolveCircle(13, 1, 1, 2).Sigma_z));
}

TEST_F(CircularLoad, FailsWithAMeshTooLarge) {
    EXPECT_EQ(KindOf([] { SolveCircle(200, 1, 1, 2); }), FailureKind::Overflow);
}

TEST_F(CircularLoad, StressOfTheMeshAtADepthIsThatOfTheRun) {
    const double sigma = CircleSigmaZ(BuildCircleMesh(kRadius, 12), 1, 0.5, 2, kP);
    EXPECT_EQ(sigma, SolveCircle(12, 1, 0.5, 2).Sigma_z);
}

TEST_F(CircularLoad, StressOfTheMeshOnTheSurfaceNeedsNoSubstitute) {
    EXPECT_EQ(CircleSigmaZ(BuildCircleMesh(kRadius, 12), 0, 0, 0, kP), kP);
    EXPECT_EQ(CircleSigmaZ(BuildCircleMesh(kRadius, 12), 0.75, 0, 0, kP), 0);
}

}  // namespace
}  // namespace lithmark::tests
