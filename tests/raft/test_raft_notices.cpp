// Notices of the raft runs: what raises each, what close by does not, and the measures behind them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "kernels/raft/Conditioning.h"
#include "raft/RaftProblem.h"
#include "raft/RaftRunCase.h"
#include "report/Measured.h"
#include "support/Matchers.h"
#include "support/Raised.h"

namespace lithmark::tests {
namespace {

class RaftNotices : public RaftRunCase {
  protected:
    void RunCircle() {
        SessionRecord& s = Session;
        ComputeCircularRaft(s.z, s.Q, s.A, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Gamma,
                            s.AnalysisType, s.SettlementAt);
        ASSERT_FALSE(Session.CalcAborted) << host_.LastMessage().Text;
    }
    // Clay by its modulus below the depth z.
    void OnClay(double z, int soil = 1) {
        Session.ProblemType = Problem::RaftConsolidation;
        Session.SoilPropertyType = soil;
        Session.z = z;
        Session.h = 5;
    }
    void Circle() {
        Session.LoadType = 3;
        Session.PrefND = 12;
    }
    static double MeanPressure() { return Session.RaftMeanPressure; }
};

// The Hilbert matrix of order 4: the greatest row sum is 25/12, that of its inverse 13620, so the condition number is
// 28375.
TEST(Conditioning, IsTheProductOfTheNorms) {
    Matrix<Single> hilbert(4, 4), inverse;
    for (int r = 1; r <= 4; ++r)
        for (int c = 1; c <= 4; ++c) hilbert(r, c) = 1.0 / (r + c - 1);
    InvertFlexibility(4, hilbert, inverse);
    EXPECT_NEAR(MeasuresOfRaft().Condition, 28375, 28375 * 0.01);
    Matrix<Single> one(1, 1);
    one(1, 1) = 5;
    InvertFlexibility(1, one, one);
    EXPECT_NEAR(MeasuresOfRaft().Condition, 1, 1e-6);
}

// The nodes' pressures in 64 bits by one system for forces and plane, without an inverse: what 32 bits change is far
// below 0.2 % of the mean pressure on surface clay, and beyond it on clay that lies deep under a fine mesh, where the
// notice is raised. What it tells bounds the change.
TEST_F(RaftNotices, BadConditionIsToldWhereTheLastDigitsDecide) {
    for (const double z : {0.0, 3.0}) {
        Fresh();
        OnClay(z);
        Session.PrefDx = Session.PrefDy = 0.5;
        Run();
        const RaftInput input = [z] {
            RaftInput in = SquareRaft();
            in.z = z;
            return in;
        }();
        const RectangularMesh mesh = MeshOf(input, 0.5, 0.5);
        const auto mean = [z](double r) {
            const auto part = [r](double depth) {
                const double R2 = r * r + depth * depth;
                return r * r / std::pow(R2, 1.5) - 3 / std::sqrt(R2);
            };
            return (part(z + 5) - part(z)) / (5 * 2 * 3.14159265358979323846);
        };
        const double corner = MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z, z + 5);
        const RigidPlate plate =
            SolveRigidPlate(FlexibilityOf(
                                mesh, [&](int r) { return mesh.NodeElems(r) / mesh.NodeArea(r) * corner; }, mean),
                            Wide(mesh.u), Wide(mesh.v), input.Q, 0, 0);
        double change = 0, greatest = 0;
        for (int i = 1; i <= mesh.Nodes(); ++i) {
            const double exact = plate.Force[static_cast<std::size_t>(i - 1)] / mesh.NodeArea(i);
            change = std::max(change, std::abs(exact - Session.NodePressure(i)));
            greatest = std::max(greatest, std::abs(exact));
        }
        EXPECT_EQ(Raised(NoticeId::RaftIllConditioned), change > 0.002 * MeanPressure()) << z << ": " << change;
        EXPECT_LT(change, 20 * kLastBit * MeasuresOfRaft().Condition * greatest) << z;
    }
}

TEST_F(RaftNotices, BadConditionIsToldForEveryKindOfClayAndShape) {
    const auto condition = [this](double z, int soil, double h, bool circle) {
        Fresh();
        OnClay(z, soil);
        Session.h = h;
        if (circle) Circle();
        Session.PrefDx = Session.PrefDy = 0.5;
        if (circle)
            RunCircle();
        else
            Run();
        return Raised(NoticeId::RaftIllConditioned);
    };
    for (const bool circle : {false, true}) {
        for (const double z : {0.0, 3.0}) {
            EXPECT_EQ(condition(z, 1, 5, circle), z > 0) << "by modulus, circle " << circle;
            EXPECT_EQ(condition(z, 2, 2, circle), z > 0) << "thin, circle " << circle;
            EXPECT_EQ(condition(z, 2, 8, circle), z > 0) << "thick, circle " << circle;
        }
    }
}

TEST_F(RaftNotices, BadConditionIsNotToldWhereTheElementsAreAsLargeAsTheDepth) {
    OnClay(1.25);  // nodes 1.25 m apart
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftIllConditioned));
    OnClay(4);
    Session.PrefDx = Session.PrefDy = 1.25;
    Run();
    EXPECT_TRUE(Raised(NoticeId::RaftIllConditioned));
}

// Thin clay under an eccentric load: the mean stress at the centre is that of the linear system.
TEST_F(RaftNotices, ForcesThatDoNotBalanceTheLoadAreTold) {
    OnClay(0, 2);
    Session.h = 2;
    Session.Exz_x = 1;
    Run();
    EXPECT_TRUE(Raised(NoticeId::RaftEquilibrium));
    EXPECT_THAT(Told(NoticeId::RaftEquilibrium), HasSubstr("sum to " + MeasuredForce(SumOf(Session.NodeForce))));
    EXPECT_GT(SumOf(Session.NodeForce), 1.005 * 7854);

    Session.Exz_x = 0;  // a central load is balanced
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftEquilibrium));
    Session.ProblemType = Problem::RaftDisplacement;  // so is any load on an elastic layer
    Session.Exz_x = 1;
    Session.Exz_y = 0.5;
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftEquilibrium));
}

// The punch is a central one, so an eccentric load's moment is not carried.
TEST_F(RaftNotices, AMomentThatIsNotCarriedIsTold) {
    Session.AnalysisType = true;
    Session.Exz_y = 0.5;
    Run();
    EXPECT_THAT(Told(NoticeId::RaftEquilibrium), HasSubstr("along y is"));
    EXPECT_THAT(Told(NoticeId::RaftEquilibrium), HasSubstr("load's is " + MeasuredMoment(3927)));
    Session.Exz_y = 0;
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftEquilibrium));
}

TEST_F(RaftNotices, TensionIsTold) {
    Session.Exz_x = 1.6;  // well outside the kernel of the raft
    Run();
    const double least = *std::min_element(Session.NodePressure.begin(), Session.NodePressure.end());
    ASSERT_LT(least, 0);
    EXPECT_THAT(Told(NoticeId::RaftTension), HasSubstr("down to " + MeasuredPressure(least)));
    Session.Exz_x = 0.5;
    Run();
    ASSERT_GT(*std::min_element(Session.NodePressure.begin(), Session.NodePressure.end()), 0);
    EXPECT_FALSE(Raised(NoticeId::RaftTension));
}

// Steinbrenner's centre of a flexible raft 5 m by 5 m by hand: four corners of 2.5 m by 2.5 m under 314.16 kN/m2.
TEST_F(RaftNotices, AnAnalyticalRunTellsTheLayerThatItDoesNotUse) {
    Session.AnalysisType = true;
    Session.h = 2;
    Run();
    const double p = 7854 / 25.0, corner = 2 * 2.5 * std::log((std::sqrt(2.0) + 1) / (std::sqrt(2.0) - 1));
    const double halfSpace = 4 * p * (1 - 0.25 * 0.25) * corner / (2 * 3.14159265358979) / 5000 * 100;
    const double layer = 4 * p * RectCornerLayer(2.5, 2.5, 2, 0.25) / 5000 * 100;
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("by " + MeasuredSettlement(halfSpace) + " on the half"));
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("by " + MeasuredSettlement(layer) + " on the layer"));
    Session.h = 0;  // nothing was entered that is not used
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftLayerUnused));
    Session.Exz_x = 0.1;
    Run();
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("eccentricities"));
    Session.AnalysisType = false;
    Session.h = 2;
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftLayerUnused));
}

TEST_F(RaftNotices, TheCircleUsesItsEccentricityAndTellsTheLayerAlone) {
    Circle();
    Session.AnalysisType = true;
    Session.SettlementAt = false;
    Session.Exz_x = 0.5;
    RunCircle();
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("thickness of 5 m"));
    EXPECT_EQ(Told(NoticeId::RaftLayerUnused).find("eccentricities"), std::string::npos);
}

TEST_F(RaftNotices, AClayLayerThatTheLimitingDepthReplacesIsTold) {
    OnClay(1, 2);
    Session.AnalysisType = true;
    Run();
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("(depth 1 m, thickness 5 m)"));
    EXPECT_THAT(Told(NoticeId::RaftLayerUnused), HasSubstr("limiting depth of " + MeasuredLength(Session.h)));
}

TEST_F(RaftNotices, ALimitingDepthOfMoreThanTenSidesIsTold) {
    OnClay(0, 2);
    Session.AnalysisType = true;
    Session.PrefTol = 0.001;
    Run();
    EXPECT_GT(static_cast<double>(Session.h), 50);
    EXPECT_THAT(Told(NoticeId::RaftLimitingDepth), HasSubstr(MeasuredNumber(Session.h / 5)));
    Session.PrefTol = 0.1;  // cm: the search ends higher up
    OnClay(0, 2);
    Run();
    EXPECT_LT(static_cast<double>(Session.h), 50);
    EXPECT_FALSE(Raised(NoticeId::RaftLimitingDepth));
}

TEST_F(RaftNotices, ASearchForTheLimitingDepthThatFindsNoneIsTold) {
    OnClay(0, 2);
    Session.AnalysisType = true;
    Session.PrefTol = 1e-14;  // far below the last digit of some centimetres
    Run();
    EXPECT_THAT(Told(NoticeId::RaftLimitingDepth), HasSubstr("no longer changed"));
    OnClay(0, 2);
    Session.PrefTol = 0;
    RunRectangle();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_THAT(Told(NoticeId::RaftLimitingDepth), HasSubstr("no limiting depth"));
}

TEST_F(RaftNotices, ALayerThinnerThanAnElementIsTold) {
    Session.h = 1;  // nodes 1.25 m apart
    Run();
    // 1.25 m beside the centre: two corners of 3.75 m by 2.5 m and two of 1.25 m by 2.5 m.
    const double corners = 2 * RectCornerLayer(3.75, 2.5, 1, 0.25) + 2 * RectCornerLayer(1.25, 2.5, 1, 0.25);
    const double closed = 7854 / 25.0 * corners / 5000 * 100;
    EXPECT_THAT(Told(NoticeId::RaftThinLayer), HasSubstr("by " + MeasuredSettlement(closed) + " in closed form"));
    Session.h = 1.25;
    Run();
    EXPECT_FALSE(Raised(NoticeId::RaftThinLayer));
    Circle();
    Session.h = 0.8;  // a diameter of 10 m in 12 divisions: 0.833 m
    RunCircle();
    EXPECT_TRUE(Raised(NoticeId::RaftThinLayer));
    Session.h = 0.84;
    RunCircle();
    EXPECT_FALSE(Raised(NoticeId::RaftThinLayer));
}

// A rigid disc under a moment Q e turns by 3 (1 - nu^2) Q e/(4 E R^3) (Borowicka 1943): its edge settles by
// s0 (1 + 3 e/(2 R)) with s0 = (1 - nu^2) Q/(2 R E).
TEST_F(RaftNotices, TheTiltOfTheClosedFormIsTold) {
    Circle();
    Session.AnalysisType = true;
    Session.SettlementAt = true;
    Session.Exz_x = 0.5;
    RunCircle();
    const double s0 = (1 - 0.0625) * 7854 / (2 * 5 * 5000) * 100;
    const double turn = 3 * (1 - 0.0625) * 7854 * 0.5 / (4 * 5000 * 125) * 5 * 100;
    EXPECT_THAT(Told(NoticeId::RaftClosedFormTilt), HasSubstr("of theory it is " + MeasuredSettlement(s0 + turn)));
    EXPECT_THAT(Told(NoticeId::RaftClosedFormTilt), HasSubstr("edge is " + MeasuredSettlement(s0 + 2 * turn)));
    Session.SettlementAt = false;  // at all nodes: the forces' own settlements
    RunCircle();
    EXPECT_FALSE(Raised(NoticeId::RaftClosedFormTilt));
    Session.SettlementAt = true;
    Session.Exz_x = 0;
    RunCircle();
    EXPECT_FALSE(Raised(NoticeId::RaftClosedFormTilt));
}

TEST_F(RaftNotices, AnIterationThatUsesUpItsPassesIsTold) {
    OnClay(0, 2);
    Session.h = 8;
    Session.PrefImax = 1;
    Session.PrefTol = 1e-6;
    Run();
    EXPECT_THAT(Told(NoticeId::IterationEnd), HasSubstr("after 2 passes"));
    Session.PrefImax = 1000;
    Session.PrefTol = 0.001;
    Run();
    EXPECT_FALSE(Raised(NoticeId::IterationEnd));
}

TEST_F(RaftNotices, ASearchForTheTiltThatUsesUpItsStepsIsTold) {
    OnClay(0, 2);
    Session.h = 2;
    Session.Exz_x = -0.5;  // the search goes upward only
    RunRectangle();
    EXPECT_TRUE(Raised(NoticeId::IterationEnd));
    Session.Exz_x = 0.5;
    Run();
    EXPECT_FALSE(Raised(NoticeId::IterationEnd));
}

}  // namespace
}  // namespace lithmark::tests
