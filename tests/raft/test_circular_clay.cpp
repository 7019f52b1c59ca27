// Numerical analysis of the circular raft on clay by the semi-logarithmic law.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/PolarSystem.h"
#include "raft/CircularProblem.h"
#include "services/numerics/NumericLib.h"

namespace lithmark::tests {
namespace {

class CircularClay : public CircularRaft {
  protected:
    CircularClay() {
        Session.ProblemType = Problem::RaftConsolidation;
        Session.PrefND = 6;
        Input.SoilPropertyType = 2;
    }

    // Settlement [m] of a layer of thickness t by the semi-logarithmic law.
    double Settlement(double t, double initial, double increase) const {
        return t * Input.Cc / (1 + Input.eo) * std::log10((initial + increase) / initial);
    }
    // Mean stress below a node from the forces of the last run, in 64 bits.
    static double MeanStress(const PolarMesh& mesh, int t, double z1, double z2) {
        const MeanStressInfluence influence(mesh, z1, z2);
        double sum = 0;
        for (int i = 1; i <= mesh.NTotal; ++i)
            sum += i == t ? influence.Own(RingOf(mesh, i), Session.NodeForce(i) / mesh.NodeArea(i))
                          : influence.Point(t, i) * Session.NodeForce(i);
        return sum;
    }
};

// --- thin: h < R ---

// A central load gives one mean stress all over; the settlement is that of the law, and the pressures do not depend on
// the law.
TEST_F(CircularClay, ThinAndCentral) {
    Input.h = 3;
    Calculate();
    const auto pressure = Session.NodePressure;
    const double s = Session.NodeSettlement(1);
    EXPECT_NEAR(ForceSum(), 7854, 0.01);
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double D = MeanStress(mesh, 1, 0, 3);
    for (int i = 1; i <= mesh.NTotal; ++i) {
        EXPECT_NEAR(MeanStress(mesh, i, 0, 3), D, 1e-3 * D) << i;
        EXPECT_NEAR(Session.NodeSettlement(i), 100 * Settlement(3, 8.69 * 3 / 2 + 51.82, D), 1e-4) << i;
    }
    EXPECT_FALSE(Session.RaftMidFlexible(1) > s);

    Input.SoilPropertyType = 1;
    Calculate();
    for (int i = 1; i <= mesh.NTotal; ++i) EXPECT_NEAR(Session.NodePressure(i), pressure(i), 2e-3);
}

// The tilt is stepped up until the forces balance the moment within PrefTol, counted in moments over the initial and
// the mean stress ratio.
TEST_F(CircularClay, ThinAndEccentric) {
    Input.h = 3;
    Input.Exz_x = 0.5;
    Session.PrefTol = 0.01;
    Calculate();
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double S0 = 8.69 * 3 / 2 + 51.82, D0 = MeanStress(mesh, 1, 0, 3);
    EXPECT_NEAR(MomentSum(), 7854 * 0.5, 1.1 * 0.01 * (S0 + D0));
    // A plane of settlements, whose stress ratios are those of the law.
    for (int i = 1; i <= mesh.NTotal; ++i) {
        const double s = 100 * Settlement(3, S0, MeanStress(mesh, i, 0, 3));
        EXPECT_NEAR(Session.NodeSettlement(i), s, 1e-3 * s) << i;
    }
    // Deliberate: the mean stress at the centre stays that of the linear soil, so the forces are a little more than Q.
    EXPECT_GT(ForceSum(), 1.002 * 7854);
    EXPECT_LT(ForceSum(), 1.02 * 7854);
}

// Deliberate: steps go upward only; from 0 the search for a negative tilt backs by halves to -0.001 in all.
TEST_F(CircularClay, ThinWithNegativeEccentricityStopsAtTheFirstStep) {
    Input.h = 3;
    Input.Exz_x = -0.5;
    Calculate();
    const double slope = (Session.NodeSettlement(4) - Session.NodeSettlement(1)) / Session.NodeX(4);
    EXPECT_NEAR(slope, 100 * 0.16 * 3 * -0.001 / (1.85 * std::log(10.0)), 1e-5);
}

// After 1000 steps of 0.001 the search stands at 1.000, balanced or not.
TEST_F(CircularClay, ThinSearchEndsAfterAThousandSteps) {
    Input.h = 3;
    Input.A = 4;
    Input.Exz_x = 200;  // far beyond the raft
    Calculate();
    const double slope = (Session.NodeSettlement(4) - Session.NodeSettlement(1)) / Session.NodeX(4);
    EXPECT_NEAR(slope, 100 * 0.16 * 3 * 1.0 / (1.85 * std::log(10.0)), 2e-3);
    EXPECT_LT(MomentSum(), 0.5 * 7854 * 200);
}

TEST_F(CircularClay, ThinFlexibleComparison) {
    Input.h = 3;
    Session.PrefND = 24;
    Calculate();
    const double D = 100 * MeanCircleAxisFactor(5, 0, 3), S0 = 8.69 * 3 / 2 + 51.82;
    EXPECT_NEAR(Session.RaftMidFlexible(13), 100 * Settlement(3, S0, D), 0.05);
}

// --- thick: h >= R ---

// h = R is the least thick clay, one sublayer of thickness R.
TEST_F(CircularClay, ThicknessOfARadiusIsThickClayOfOneSublayer) {
    Calculate();
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double s = 100 * Settlement(5, 8.69 * 5 / 2 + 51.82, MeanStress(mesh, 1, 0, 5));
    EXPECT_NEAR(Session.NodeSettlement(1), s, 0.05);

    // By the thin method the settlement a hair below is about the same, but the tilted raft's forces are more than Q.
    Input.Exz_x = 0.5;
    Calculate();
    EXPECT_NEAR(ForceSum(), 7854, 0.05);
    Input.h = 4.9999;
    Calculate();
    EXPECT_GT(ForceSum(), 1.002 * 7854);
}

// The iteration's end is the solution of the true law: every node's column settles as the plane does.
TEST_F(CircularClay, ThickColumnsSettleAsThePlane) {
    Session.PrefTol = 1e-7;
    Input.h = 12;  // three sublayers of 4 m
    for (double z : {0.0, 1.0})
        for (double e : {0.0, 0.7}) {
            Input.z = z;
            Input.Exz_x = e;
            Calculate();
            EXPECT_NEAR(ForceSum(), 7854, 0.05);
            EXPECT_NEAR(MomentSum(), 7854 * e, 0.2);
            const PolarMesh mesh = BuildPolarMesh(6, 5);
            for (int i = 1; i <= mesh.NTotal; ++i) {
                double s = 0;
                for (int k = 1; k <= 3; ++k)
                    s += Settlement(4, 51.82 + 8.69 * (4 * k - 2), MeanStress(mesh, i, z + 4 * (k - 1), z + 4 * k));
                EXPECT_NEAR(Session.NodeSettlement(i), 100 * s, 2e-3) << z << " " << e << " node " << i;
            }
        }
}

// h/R is rounded up, and the sublayers share the layer: 5.5 m on R = 5 gives two of 2.75 m.
TEST_F(CircularClay, SublayersShareTheLayerEvenly) {
    Session.PrefTol = 1e-7;
    Input.h = 5.5;
    Calculate();
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    const double s = Settlement(2.75, 51.82 + 8.69 * 1.375, MeanStress(mesh, 1, 0, 2.75)) +
                     Settlement(2.75, 51.82 + 8.69 * 4.125, MeanStress(mesh, 1, 2.75, 5.5));
    EXPECT_NEAR(Session.NodeSettlement(1), 100 * s, 2e-3);
}

// One pass is the tangent at the initial stresses: a soil with the modulus S0 ln 10 (1 + eo)/Cc.
TEST_F(CircularClay, ThickFirstPassIsTheTangent) {
    // The count is tested after a pass: with a limit of 0 the first one stands.
    Session.PrefImax = 0;
    Calculate();
    const double first = Session.NodeSettlement(1);
    const auto force = Session.NodeForce;
    Input.SoilPropertyType = 1;
    Input.Es = (51.82 + 8.69 * 2.5) * std::log(10.0) * 1.85 / 0.16;
    Calculate();
    EXPECT_NEAR(Session.NodeSettlement(1), first, 1e-4 * first);
    for (int i = 1; i <= force.Upper(); ++i) EXPECT_NEAR(Session.NodeForce(i), force(i), 0.01);
}

// The limit ends the iteration after PrefImax + 1 passes, without a word; more passes come nearer.
TEST_F(CircularClay, ThickIterationStopsAtTheLimitOfPasses) {
    Session.PrefTol = 1e-7;
    Session.PrefImax = 1000;
    Input.Exz_x = 0.7;
    Calculate();
    const double end = Session.NodeSettlement(4);
    double previous = 1e9;
    for (int limit : {0, 1, 2, 4}) {
        Session.PrefImax = limit;
        Calculate();
        const double lack = std::abs(Session.NodeSettlement(4) - end);
        EXPECT_LT(lack, previous) << limit;
        previous = lack;
    }
    EXPECT_GT(previous, 0);
}

// Far outside the raft the load lifts its other side: the mean stress there falls by more than the initial stress,
// whose logarithm does not exist. It counts as no increase.
TEST_F(CircularClay, ThickTakesANegativeIncreaseAsNone) {
    Session.PrefImax = 0;
    Input.Exz_x = 20;
    Calculate();
    const PolarMesh mesh = BuildPolarMesh(6, 5);
    EXPECT_LT(MeanStress(mesh, mesh.NHalf, 0, 5), -(51.82 + 8.69 * 2.5));
    EXPECT_NEAR(ForceSum(), 7854, 0.05);
}

TEST_F(CircularClay, ThickFlexibleComparison) {
    Session.PrefND = 24;
    Input.h = 12;
    Calculate();
    double s = 0;
    for (int k = 1; k <= 3; ++k)
        s += Settlement(4, 51.82 + 8.69 * (4 * k - 2), 100 * MeanCircleAxisFactor(5, 4 * (k - 1), 4 * k));
    EXPECT_NEAR(Session.RaftMidFlexible(13), 100 * s, 0.005 * 100 * s);
}

TEST_F(CircularClay, WeightlessClayWithoutOverburdenFails) {
    Input.Gamma = 0;
    Input.Po = 0;
    for (double h : {3.0, 12.0}) {
        Input.h = h;
        EXPECT_THROW(Calculate(), Failure) << h;
    }
}

TEST_F(CircularClay, MoreSublayersThanAnIntegerCountsFailsAtOnce) {
    Input.A = 0.01;
    Input.h = 400;  // 40000 of 0.01 m
    try {
        Calculate();
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    }
}

}  // namespace
}  // namespace lithmark::tests
