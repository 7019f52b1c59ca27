// Notices of the problems 4 and 5: what raises each, and what close by does not.
#include <gtest/gtest.h>

#include <cmath>

#include "consolidation/RateCase.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "report/Measured.h"
#include "support/Matchers.h"
#include "support/Raised.h"

namespace lithmark::tests {
namespace {

class ConsolidationNotices : public testing::Test {
  protected:
    ConsolidationNotices() { FreshSession(); }
    // A circle of radius 5 m under 150 kN/m2 over 4 m of clay.
    void Settle(double x, double z, int soil, int loadType = 3) {
        Session.ProblemType = Problem::Consolidation;
        ComputeConsolidation(x, 0, z, 1000, 150, 5, 5, 4, 0.9, 50, 9, 0.2, 7000, loadType, soil);
        ASSERT_FALSE(Session.CalcAborted);
    }
    ScriptedHost host_;
};

double Number(const std::string& text, const std::string& behind) {
    return std::stod(text.substr(text.rfind(behind) + behind.size()));
}

TEST_F(ConsolidationNotices, TheMeanStressOfACircleIsToldOffItsAxisAboveOneRadius) {
    Settle(2, 0, 1);
    EXPECT_TRUE(Raised(NoticeId::CircleMeanStress));
    Settle(2, 5, 1);  // from one radius on
    EXPECT_FALSE(Raised(NoticeId::CircleMeanStress));
    Settle(0, 0, 1);  // the axis has a closed form
    EXPECT_FALSE(Raised(NoticeId::CircleMeanStress));
    Settle(2, 0, 1, 2);  // a rectangle
    EXPECT_FALSE(Raised(NoticeId::CircleMeanStress));
}

// The integrated settlement approaches the closed form of the axis, where the mesh has no part in the run.
TEST_F(ConsolidationNotices, TheSettlementToldIsThatOfTheExactStress) {
    for (const int soil : {1, 2}) {
        Settle(0, 0, soil);
        const double axis = Session.s;
        Settle(0.002, 0, soil);
        EXPECT_NEAR(Number(Told(NoticeId::CircleMeanStress), "integrated "), axis, 2e-3 * axis) << soil;
        // Two millimetres beside the axis the node of the centre is a point load.
        EXPECT_GT(Session.s, 1.5 * axis) << soil;
    }
}

TEST_F(ConsolidationNotices, AStepNumberBeyondOneHalfIsTold) {
    RateCase c;
    c.NumLayers = 2;
    c.h = Array<Single>::Of({4, 2.2});  // dz 1 and 0.55 m: 1/6 / 0.55^2 = 0.551
    c.T = 1;
    c.Run();
    EXPECT_THAT(Told(NoticeId::MarchUnstable), HasSubstr("Layer 2: the step number is 0.5510"));
    c.h = Array<Single>::Of({4, 2.4});  // 0.463
    c.Run();
    EXPECT_FALSE(Raised(NoticeId::MarchUnstable));
}

TEST_F(ConsolidationNotices, PressuresBeyondTheInitialOnesAreTold) {
    RateCase c;
    c.NumLayers = 2;
    c.h = Array<Single>::Of({8, 1});  // the second layer's step number is 2.67
    c.T = 0.05;                       // 14 steps, each of which multiplies the error by some ten
    c.Run();
    ASSERT_FALSE(Session.CalcAborted);
    EXPECT_TRUE(Raised(NoticeId::MarchRange));
    c.h = Array<Single>::Of({4, 4});
    c.T = 5;
    c.Run();
    EXPECT_FALSE(Raised(NoticeId::MarchRange));
}

TEST_F(ConsolidationNotices, FewerThanSixStepsAreTold) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 5.5);
    c.Run();
    EXPECT_THAT(Told(NoticeId::MarchFewSteps), HasSubstr("in 5.500 steps"));
    c.T = TimeOfSteps(c, 6);
    c.Run();
    EXPECT_FALSE(Raised(NoticeId::MarchFewSteps));
    c.T = 0;  // nothing has drained, and Uc is printed as 100 %
    c.Run();
    EXPECT_THAT(Told(NoticeId::MarchFewSteps), HasSubstr("100 % does not hold"));
    EXPECT_EQ(static_cast<double>(Session.Uc), 100);
}

TEST_F(ConsolidationNotices, TheInitialPressureOfACircleIsTold) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 3;
    c.Run();
    // On the axis the stress is p (1 - z^3/(a^2 + z^2)^(3/2)); by the trapezoidal rule over the depths 1 to 5 m.
    const auto stress = [](double z) { return 150 * (1 - std::pow(z, 3) / std::pow(4 + z * z, 1.5)); };
    const double mean = (stress(1) / 2 + stress(2) + stress(3) + stress(4) + stress(5) / 2) / 4;
    EXPECT_NEAR(Number(Told(NoticeId::MarchCirclePressure), "nodes "), mean, 1e-3 * mean);
    c.LoadType = 2;
    c.Run();
    EXPECT_FALSE(Raised(NoticeId::MarchCirclePressure));
    c.LoadType = 3;
    c.Pressure = true;
    c.Run();
    EXPECT_FALSE(Raised(NoticeId::MarchCirclePressure));
}

}  // namespace
}  // namespace lithmark::tests
