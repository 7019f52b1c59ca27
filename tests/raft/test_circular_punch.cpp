// Analytical analysis of the circular raft against the rigid punch on a half-space.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "kernels/raft/CircularPunch.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/SectorIntegral.h"
#include "raft/CircularProblem.h"

namespace lithmark::tests {
namespace {

class CircularPunch : public CircularRaft {
  protected:
    CircularPunch() {
        Input.AnalysisType = true;
        Input.SettlementAt = true;
    }
};

// The punch's pressure integrated over a node's sector by the midpoint rule, with r = R sin t against the pole at the
// edge.
double ForceOnSector(const PolarMesh& mesh, int node, double Q, double e) {
    constexpr int steps = 300;
    const double R = mesh.R;
    const double from = std::asin(mesh.NodeInner(node) / R), to = std::asin(mesh.NodeOuter(node) / R);
    const double theta1 = mesh.NodeTheta1(node), theta2 = mesh.NodeTheta2(node);
    double sum = 0;
    for (int i = 0; i < steps; ++i)
        for (int j = 0; j < steps; ++j) {
            const double t = from + (to - from) * (i + 0.5) / steps, r = R * std::sin(t);
            const double x = r * std::cos(theta1 + (theta2 - theta1) * (j + 0.5) / steps);
            sum += (1 + 3 * e * x / (R * R)) * r;
        }
    return Q / (2 * kPi * R) * sum * (to - from) * (theta2 - theta1) / (steps * steps);
}

TEST_F(CircularPunch, NodeForcesAreThePressureOverTheSector) {
    for (double e : {0.0, 0.5, -1.0}) {
        const PolarMesh mesh = BuildPolarMesh(8, 5);
        const CircularPunchForces forces = PunchContactForces(mesh, 7854, e);
        for (int i = 1; i <= mesh.NTotal; ++i)
            EXPECT_NEAR(forces.NodeForce(i), ForceOnSector(mesh, i, 7854, e), 0.02) << e << " node " << i;
    }
}

TEST_F(CircularPunch, NodeForcesCarryTheLoad) {
    for (int nd : {2, 4, 12, 50})
        for (double e : {0.0, 1.0}) {
            const CircularPunchForces forces = PunchContactForces(BuildPolarMesh(nd, 5), 7854, e);
            EXPECT_NEAR(SumOf(forces.NodeForce), 7854, 0.02) << nd << " " << e;
        }
}

// The nodes' lever arms are those of the sectors' centroids, the forces lie a little further out: the moment comes out
// a little short, and less so with a finer mesh.
TEST_F(CircularPunch, MomentsApproachTheLoads) {
    Input.Exz_x = 0.5;
    double previous = 1;
    for (int nd : {6, 12, 24, 48}) {
        Session.PrefND = nd;
        Calculate();
        const double lack = 1 - MomentSum() / (7854 * 0.5);
        EXPECT_GT(lack, 0);
        EXPECT_LT(lack, 0.6 * previous);
        previous = lack;
    }
    EXPECT_LT(previous, 0.006);
}

// The forces that stand for whole rings are those of a central load, whatever the eccentricity.
TEST_F(CircularPunch, FirstRayForcesAreTheCentralPart) {
    const PolarMesh mesh = BuildPolarMesh(8, 5);
    const CircularPunchForces central = PunchContactForces(mesh, 7854, 0), tilted = PunchContactForces(mesh, 7854, 1);
    for (int i = 1; i <= mesh.NRing; ++i) {
        EXPECT_EQ(tilted.FirstRayForce(i), central.FirstRayForce(i));
        EXPECT_NEAR(central.FirstRayForce(i), central.NodeForce(i), 1e-5 * central.NodeForce(i));
    }
    EXPECT_EQ(central.FirstRayForce.Upper(), mesh.NRing);
}

// By hand: 7854 (1 - 0.25^2)/(2 5 5000) m = 14.72625 cm, and with nu = 0 15.708 cm.
TEST_F(CircularPunch, ClosedFormSettlement) {
    Calculate();
    for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i) ASSERT_EQ(Session.NodeSettlement(i), Single(14.72625));
    Session.ProblemType = Problem::RaftConsolidation;
    Input.SoilPropertyType = 1;
    Calculate();
    for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i) ASSERT_NEAR(Session.NodeSettlement(i), 15.708, 2e-6);
}

// Deliberate: the edge gets s0 (1 + 3 e/R) though theory has s0 (1 + 3 e/(2 R)).
TEST_F(CircularPunch, EccentricClosedFormTiltsTwiceAsMuchAsTheory) {
    Input.Exz_x = 0.5;
    Calculate();
    const double s0 = 14.72625, slope = s0 * 3 * 0.5 / 5 / 5;
    for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i)
        EXPECT_NEAR(Session.NodeSettlement(i), s0 + slope * Session.NodeX(i), 1e-5);

    // Superposed node forces give the tilt of theory.
    Input.SettlementAt = false;
    Session.PrefND = 24;
    Calculate();
    double xs = 0, xx = 0;
    for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i) {
        xs += Session.NodeX(i) * Session.NodeSettlement(i);
        xx += Square(Session.NodeX(i));
    }
    EXPECT_NEAR(xs / xx, slope / 2, 0.03 * slope / 2);
}

TEST_F(CircularPunch, SuperposedNodesSettleAboutAsThePunch) {
    Input.SettlementAt = false;
    for (int nd : {12, 24, 48}) {
        Session.PrefND = nd;
        Calculate();
        double mean = 0;
        for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i) {
            EXPECT_NEAR(Session.NodeSettlement(i), 14.72625, 0.04 * 14.72625) << nd << " node " << i;
            mean += Session.NodeSettlement(i) * Session.NodeArea(i) / (25 * kPi);
        }
        EXPECT_NEAR(mean, 14.72625, 0.01 * 14.72625) << nd;
    }
}

// By symmetry, also where the superposition was not worked out.
TEST_F(CircularPunch, SuperposedSettlementsAreSymmetric) {
    Input.SettlementAt = false;
    const auto sameAt = [](int i, int j) { EXPECT_EQ(Session.NodeSettlement(i), Session.NodeSettlement(j)); };
    for (double e : {0.0, 0.5}) {
        Input.Exz_x = e;
        Calculate();
        const int perRay = 6;
        for (int ray = 0; ray < 24; ++ray)
            for (int k = 0; k < perRay; ++k) {
                sameAt(2 + ray * perRay + k, 2 + (24 - ray) % 24 * perRay + k);
                if (e == 0) sameAt(2 + ray * perRay + k, 2 + (36 - ray) % 24 * perRay + k);
            }
    }
}

TEST_F(CircularPunch, TheLayerPlaysNoPartInProblem9) {
    Calculate();
    const auto flexible = Session.RaftMidFlexible;
    Input.h = 0.1;
    Input.z = 7;
    Calculate();
    EXPECT_EQ(Input.z, 0);
    EXPECT_EQ(Input.h, Single(0.1));
    EXPECT_NEAR(Session.NodeSettlement(1), 14.72625, 1e-6);
    for (int q = 1; q <= Session.RaftMidCount; ++q) EXPECT_EQ(Session.RaftMidFlexible(q), flexible(q));
}

// --- clay by Cc: the limiting depth ---

class CircularPunchOnClay : public CircularPunch {
  protected:
    CircularPunchOnClay() {
        Session.ProblemType = Problem::RaftConsolidation;
        Input.SoilPropertyType = 2;
    }

    // The same search in 64 bits, written anew: steps of R under the mean stress of given point forces and one loaded
    // area, until a step adds less than the tolerance, or for a given number of steps.
    struct Column {
        double h, s;
    };
    Column Search(const std::function<double(double z1, double z2)>& stress, int steps = 0) const {
        Column column{0, 0};
        for (int k = 1;; ++k) {
            const double S0 = (k - 0.5) * Input.A * Input.Gamma, D = stress(column.h, column.h + Input.A);
            const double added = 100 * Input.A * Input.Cc / (1 + Input.eo) * std::log10((S0 + D) / S0);
            column.h += Input.A;
            column.s += added;
            if (steps == 0 ? added < Session.PrefTol : k == steps) return column;
        }
    }
    // Mean of 3 z^3/(2 pi R^5) over the depth: z^3 dz/R^5 integrates to (r^2/(3 R^3) - 1/R), by hand.
    static double PointMean(double r, double z1, double z2) {
        const auto F = [r](double z) { return r * r / 3 / std::pow(r * r + z * z, 1.5) - 1 / std::hypot(r, z); };
        return 3 / (2 * kPi) * (F(z2) - F(z1)) / (z2 - z1);
    }
    static double AxisMean(double a, double z1, double z2) {
        const auto F = [a](double z) { return z - (2 * a * a + z * z) / std::hypot(a, z); };
        return (F(z2) - F(z1)) / (z2 - z1);
    }
    PolarMesh Mesh() const { return BuildPolarMesh(Session.PrefND, Input.A); }
    // Mean stress below the centre, with each ring's force in the distance of its nodes.
    double BelowCentre(double z1, double z2) const {
        const PolarMesh mesh = Mesh();
        const auto carried = [&](double r) { return Input.Q * (1 - std::sqrt(1 - r * r / Square(mesh.R))); };
        double D = carried(mesh.RingRadius(1)) / mesh.RingArea(1) * AxisMean(mesh.RingRadius(1), z1, z2);
        for (int k = 2; k <= mesh.NRing; ++k)
            D +=
                (carried(mesh.RingRadius(k)) - carried(mesh.RingRadius(k - 1))) * PointMean(mesh.NodeRadius(k), z1, z2);
        return D;
    }
};

TEST_F(CircularPunchOnClay, LimitingDepthBelowTheCentre) {
    Session.PrefTol = 0.01;
    const Column expected = Search([this](double z1, double z2) { return BelowCentre(z1, z2); });
    Calculate();
    EXPECT_EQ(Input.h, expected.h);
    EXPECT_GT(Input.h, 3 * Input.A);
    EXPECT_EQ(Input.z, 0);
    for (int i = 1; i <= Session.NodeSettlement.Upper(); ++i)
        EXPECT_NEAR(Session.NodeSettlement(i), expected.s, 2e-5 * expected.s);
}

TEST_F(CircularPunchOnClay, TheOverburdenPlaysNoPart) {
    Calculate();
    const Single s = Session.NodeSettlement(1);
    Input.Po = 0;
    Input.h = 1;
    Calculate();
    EXPECT_EQ(Session.NodeSettlement(1), s);
}

// The line of a tilted raft: the centre at x = 0, the outermost node of the first ray put at x = R.
TEST_F(CircularPunchOnClay, TiltedRaftTakesTheLineThroughCentreAndEdge) {
    Session.PrefTol = 0.01;
    Input.Exz_x = 0.5;
    const PolarMesh mesh = Mesh();
    const Column centre = Search([this](double z1, double z2) { return BelowCentre(z1, z2); });
    const int steps = static_cast<int>(std::lround(centre.h / Input.A)), edge = mesh.NRing;
    const CircularPunchForces forces = PunchContactForces(mesh, Input.Q, Input.Exz_x);
    const Column atEdge = Search(
        [&](double z1, double z2) {
            double D = forces.NodeForce(edge) / mesh.NodeArea(edge) *
                       MeanSectorFactor(mesh.RingRadius(edge - 1), mesh.R, mesh.dTheta, z1, z2);
            for (int i = 1; i <= mesh.NTotal; ++i)
                if (i != edge)
                    D += forces.NodeForce(i) *
                         PointMean(std::hypot(mesh.NodeX(i) - mesh.NodeX(edge), mesh.NodeY(i) - mesh.NodeY(edge)), z1,
                                   z2);
            return D;
        },
        steps);
    Calculate();
    EXPECT_EQ(Input.h, centre.h);
    EXPECT_GT(atEdge.s, centre.s);
    for (int i = 1; i <= mesh.NTotal; ++i)
        EXPECT_NEAR(Session.NodeSettlement(i), centre.s + (atEdge.s - centre.s) * mesh.NodeX(i) / mesh.R, 2e-4);
}

// At all nodes: the centre sets the depth, the other nodes are worked down to it.
TEST_F(CircularPunchOnClay, AllNodesShareTheLimitingDepthOfTheFirst) {
    Calculate();
    const Single atCentre = Session.NodeSettlement(1), depth = Input.h;
    Input.SettlementAt = false;
    Calculate();
    EXPECT_EQ(Input.h, depth);
    EXPECT_NEAR(Session.NodeSettlement(1), atCentre, 2e-6 * atCentre);

    // A depth that the record held before plays no part, not even one that a later node would pass.
    const auto settlement = Session.NodeSettlement;
    Input.h = 2 * Input.A;
    Calculate();
    for (int i = 1; i <= settlement.Upper(); ++i) EXPECT_EQ(Session.NodeSettlement(i), settlement(i));

    const PolarMesh mesh = Mesh();
    const CircularPunchForces forces = PunchContactForces(mesh, Input.Q, 0);
    const int t = 4;
    const Column expected = Search(
        [&](double z1, double z2) {
            double D = forces.NodeForce(t) / mesh.NodeArea(t) *
                       MeanSectorFactor(mesh.RingRadius(t - 1), mesh.RingRadius(t), mesh.dTheta, z1, z2);
            for (int i = 1; i <= mesh.NTotal; ++i)
                if (i != t)
                    D += forces.NodeForce(i) *
                         PointMean(std::hypot(mesh.NodeX(i) - mesh.NodeX(t), mesh.NodeY(i) - mesh.NodeY(t)), z1, z2);
            return D;
        },
        static_cast<int>(std::lround(depth / Input.A)));
    EXPECT_NEAR(Session.NodeSettlement(t), expected.s, 2e-5 * expected.s);
}

// A node that by itself would reach the limiting depth elsewhere ends at the first node's all the same.
TEST_F(CircularPunchOnClay, ALaterNodeHasNoLimitingDepthOfItsOwn) {
    Input.SettlementAt = false;
    Input.Exz_x = 1.6;
    const PolarMesh mesh = Mesh();
    const CircularPunchForces forces = PunchContactForces(mesh, Input.Q, Input.Exz_x);
    const int t = mesh.NHalf;  // the edge that the load relieves
    const auto stress = [&](double z1, double z2) {
        const MeanStressInfluence influence(mesh, z1, z2);
        return static_cast<double>(SumOfForces(influence, t, forces.NodeForce));
    };
    int differ = 0;
    for (double tolerance : {0.02, 0.05, 0.1, 0.2}) {
        Session.PrefTol = tolerance;
        Calculate();
        const int steps = static_cast<int>(std::lround(Input.h / Input.A));
        differ += Search(stress).h != Input.h;
        const Column expected = Search(stress, steps);
        EXPECT_NEAR(Session.NodeSettlement(t), expected.s, 1e-4 * expected.s) << tolerance;
    }
    EXPECT_GT(differ, 0);
}

TEST_F(CircularPunchOnClay, WeightlessClayFails) {
    Input.Gamma = 0;
    EXPECT_THROW(Calculate(), Failure);
}

// A tolerance below the last digit of the settlement ends the search all the same.
TEST_F(CircularPunchOnClay, TheSmallestToleranceEndsTheSearch) {
    Session.PrefTol = 1e-14;
    Calculate();
    EXPECT_GT(Input.h, 100 * Input.A);
}

}  // namespace
}  // namespace lithmark::tests
