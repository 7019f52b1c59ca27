// Degree of consolidation: grid, step, rows and sums, by hand.
#include <gtest/gtest.h>

#include "RateCase.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class Rate : public testing::Test {
  protected:
    Rate() { FreshSession(); }
    void Run(const RateCase& c) {
        c.Run();
        ASSERT_FALSE(Session.CalcAborted);
        ASSERT_TRUE(host.Messages.empty());
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    }
    ScriptedHost host;
};

MATCHER_P(IsNear, tolerance, "") {
    return std::abs(std::get<0>(arg) - std::get<1>(arg)) <= tolerance;
}

// --- grid ---

TEST_F(Rate, LayerOf2m50HasTheLeastNumberOfIntervalsFour) {
    RateCase c;
    c.h(1) = 2.5;
    c.T = 1;
    Run(c);
    EXPECT_EQ(Session.IsoLast, 4);
    EXPECT_EQ(Session.PrefDz, 0.625);
}

TEST_F(Rate, LayerOf4m20HasSixIntervalsOf0m70) {
    RateCase c;
    c.h(1) = 4.2;
    c.T = 1;
    Run(c);
    EXPECT_EQ(Session.IsoLast, 6);
    EXPECT_EQ(Session.PrefDz, Single(static_cast<double>(4.2f) / 6));
}

TEST_F(Rate, AWholeNumberOfMetresIsNotRoundedUpButMadeEven) {
    RateCase c;
    c.T = 1;
    for (const auto& [h, n] : {std::pair{6.0, 6}, {7.0, 8}, {0.1, 4}}) {
        c.h(1) = h;
        c.T = h > 1 ? 1 : 0.001;
        Run(c);
        EXPECT_EQ(Session.IsoLast, n) << "h = " << h;
    }
}

TEST_F(Rate, NodesOfTwoLayersShareTheInterfaceNode) {
    RateCase c;
    c.NumLayers = 2;
    c.h = Array<Single>::Of({4, 5});
    Run(c);
    EXPECT_EQ(Session.IsoLast, 4 + 6);
    EXPECT_EQ(Session.IsoU0.Lower(), 0);
    EXPECT_EQ(Session.IsoU0.Upper(), 10);
    EXPECT_EQ(Session.IsoUf.Upper(), 10);
    EXPECT_EQ(Session.IsoZ.Upper(), 11);
}

// The first layer counts one interval too many, so layer 2 (dz 5/6 m) is printed dz(1) - dz(2) = 1/6 m too deep.
TEST_F(Rate, NodesOfLayer2ArePrintedDeeperThanTheyLieDeliberately) {
    RateCase c;
    c.NumLayers = 2;
    c.z = 3;
    Run(c);
    const double dz2 = 5.0 / 6;
    const std::vector<double> expected{3,       4,           5,           6,           7,           8,
                                       8 + dz2, 8 + 2 * dz2, 8 + 3 * dz2, 8 + 4 * dz2, 8 + 5 * dz2, 8 + 6 * dz2};
    EXPECT_THAT(NumbersOf(Session.IsoZ), Pointwise(IsNear(1e-5), expected));
}

TEST_F(Rate, PrefDzIsOverwrittenWithTheIntervalOfLayer1AlsoWhenLayer2ConsolidatesFasterDeliberately) {
    RateCase c;
    c.NumLayers = 2;
    c.h = Array<Single>::Of({10, 3});
    c.Cv(2) = 0.000003;
    c.T = 0.1;
    Session.PrefDz = 0.25;
    Run(c);
    EXPECT_EQ(Session.PrefDz, 1);
}

TEST_F(Rate, A0IsTheCopyOfAForEveryLoad) {
    RateCase c;
    c.A = 7;
    Run(c);
    EXPECT_EQ(Session.A0, 7);
}

// --- first step, whole steps, part of a step: one layer of 4 m, dz = 1 m, both faces drained, u0 = 100 ---
//
// By hand with lambda = 1/6: the first step sees half the pressure at the faces,
//   step 1: 1/6 50 + 2/3 100 + 1/6 100 = 91.667; 100
//   step 2: 2/3 91.667 + 1/6 100 = 77.778; 2/6 91.667 + 2/3 100 = 97.222
//   step 3: 2/3 77.778 + 1/6 97.222 = 68.056; 2/6 77.778 + 2/3 97.222 = 90.741

constexpr double kTolerance = 1e-4;  // some 32-bit roundings of values about 100

TEST_F(Rate, TwoWholeStepsByHand) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 2);
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance), std::vector<double>{0, 77.77778, 97.22222, 77.77778, 0}));
    // 1 - 252.778/400
    EXPECT_NEAR(Session.Uc, 36.80556, kTolerance);
}

TEST_F(Rate, ThePartOfTheLastStepIsInterpolated) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 2.5);
    Run(c);
    EXPECT_THAT(
        NumbersOf(Session.IsoUf),
        Pointwise(IsNear(kTolerance), std::vector<double>{0, (77.77778 + 68.05556) / 2, (97.22222 + 90.74074) / 2,
                                                          (77.77778 + 68.05556) / 2, 0}));
}

TEST_F(Rate, LessThanOneStepGoesOnFromTheFirstStepByItsFractionDeliberately) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 0.5);
    Run(c);
    // 91.667 + (77.778 - 91.667)/2 and 100 + (97.222 - 100)/2: the state of 1.5 steps.
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance), std::vector<double>{0, 84.72222, 98.61111, 84.72222, 0}));
    EXPECT_NEAR(Session.Uc, (1 - 268.05556 / 400) * 100, kTolerance);
}

TEST_F(Rate, TimeZeroLeavesNoPressureAndUc100Deliberately) {
    RateCase c = StepCase(4);
    c.T = 0;
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoUf), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_EQ(Session.Uc, 100);
}

TEST_F(Rate, ExactlyOneStepLeavesNoPressureAndUc100Deliberately) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 1);
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoUf), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_EQ(Session.Uc, 100);
}

TEST_F(Rate, ImpermeableBottomReflects) {
    RateCase c = StepCase(4, 2);
    c.T = TimeOfSteps(c, 2);
    Run(c);
    // Step 1: 0, 91.667, 100, 100, 100. Step 2 at node 2: 1/6 91.667 + 5/6 100; below it nothing has arrived.
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance), std::vector<double>{0, 77.77778, 98.61111, 100, 100}));
    // Weights 1/2, 1, 1, 1, 1/2.
    EXPECT_NEAR(Session.Uc, (1 - (77.77778 + 98.61111 + 100 + 50) / 400) * 100, kTolerance);
}

TEST_F(Rate, InitialPressureOfTheTableKeepsTheFullValueAtDrainedNodes) {
    RateCase c;
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoU0), ElementsAre(100, 100, 100, 100, 100));
}

TEST_F(Rate, AfterALongTimeNothingIsLeftAndUcIs100) {
    RateCase c;
    c.T = 100;  // 28 000 steps, Tv about 1200
    Run(c);
    EXPECT_NEAR(Session.Uc, 100, 1e-5);
    for (const Single& uf : Session.IsoUf) EXPECT_NEAR(uf, 0, 1e-30);
}

// --- interface of two layers ---

TEST_F(Rate, TwoEqualLayersAreOneLayerInEveryDigit) {
    RateCase one = StepCase(8);
    one.T = 3.3;
    Run(one);
    const std::vector<double> u0 = NumbersOf(Session.IsoU0), uf = NumbersOf(Session.IsoUf), z = NumbersOf(Session.IsoZ);
    const Single Uc = Session.Uc;
    RateCase two = StepCase(4);
    two.NumLayers = 2;
    two.T = 3.3;
    Run(two);
    EXPECT_EQ(NumbersOf(Session.IsoU0), u0);
    EXPECT_EQ(NumbersOf(Session.IsoUf), uf);
    EXPECT_EQ(NumbersOf(Session.IsoZ), z);
    EXPECT_EQ(Session.Uc, Uc);
    EXPECT_GT(Uc, 20);
    EXPECT_LT(Uc, 80);
}

TEST_F(Rate, EqualLayersWithPermeabilityZeroNeedNoRatio) {
    RateCase c = StepCase(4);
    c.NumLayers = 2;
    c.K = Array<Single>::Of({0, 0});
    c.T = 3.3;
    Run(c);
}

// By hand with an impermeable bottom: after two steps node 1 holds 77.778, node 2 98.611, and 100 is left below. So in
// the third step the interface (node 4) feels the weight of the node two above alone, lambda1/(1 + r).
//   node 1: 2/3 77.778 + 1/6 98.611; node 2: 1/6 77.778 + 2/3 98.611 + 1/6 100; node 3: 1/6 98.611 + 5/6 100

TEST_F(Rate, InterfaceRowWeighsByThePermeabilities) {
    RateCase c = StepCase(4, 2);
    c.NumLayers = 2;
    c.K = Array<Single>::Of({1, 3});  // r = 3, lambda1/(1 + r) = 1/24
    c.T = TimeOfSteps(c, 3);
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance), std::vector<double>{0, 68.28704, 95.37037, 99.76852,
                                                                  98.61111 / 24 + 2300.0 / 24, 100, 100, 100, 100}));
}

TEST_F(Rate, InterfaceRowAndItsWeightGoByTheIntervals) {
    RateCase c = StepCase(4, 2);
    c.NumLayers = 2;
    c.h(2) = 2;             // dz 0.5
    c.Cv(2) = c.Cv(1) / 4;  // lambda2 = lambda1 = 1/6
    c.T = TimeOfSteps(c, 3);
    Run(c);
    const double interfaceNode = 98.61111 / 18 + 1700.0 / 18;  // r = 2
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance),
                          std::vector<double>{0, 68.28704, 95.37037, 99.76852, interfaceNode, 100, 100, 100, 100}));
    // Weights 0.5, 1, 1, 1, (1 + 0.5)/2, 0.5, 0.5, 0.5, 0.25.
    const double Sf = 68.28704 + 95.37037 + 99.76852 + 0.75 * interfaceNode + 175;
    EXPECT_NEAR(Session.Uc, (1 - Sf / 600) * 100, kTolerance);
}

TEST_F(Rate, CvMaxSetsTheStepAlsoWhenItIsThatOfLayer2) {
    // Layer 2 four times as fast with dz equal: the step is a quarter, lambda 1/24 above and 1/6 below.
    RateCase c = StepCase(4);
    c.NumLayers = 2;
    c.Cv(1) = c.Cv(2) / 4;
    c.T = StepOf(StepCase(4)) * 2;
    Run(c);
    // Node 1 after 2 steps: 1/24 50 + 11/12 100 + 1/24 100 = 97.9167; then 11/12 97.9167 + 1/24 100 = 93.9236.
    EXPECT_NEAR(Session.IsoUf(1), 93.92361, kTolerance);
    EXPECT_NEAR(Session.IsoUf(7), 77.77778, kTolerance);
}

TEST_F(Rate, CvOfALayerThatIsNotInUseCountsForNothing) {
    RateCase c = StepCase(4);
    c.T = TimeOfSteps(c, 2);
    c.Cv(2) = 1;
    Run(c);
    EXPECT_NEAR(Session.IsoUf(1), 77.77778, kTolerance);
}

// --- initial pressure from a load ---

TEST_F(Rate, PointLoadGivesBoussinesqStress) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 1;
    c.x = 1;
    c.y = 2;
    Run(c);
    // Boussinesq (1885): 3 Q z^3/(2 pi R^5)
    for (int m = 0; m <= 4; ++m) {
        const double z = 1 + m, R = std::sqrt(5 + z * z);
        EXPECT_NEAR(Session.IsoU0(m), 3 * 7854 * z * z * z / (2 * std::numbers::pi * std::pow(R, 5)), 1e-3)
            << "node " << m;
    }
}

TEST_F(Rate, PointLoadOnTheSurfaceTakesATinyDepthInstead) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 1;
    c.x = 3;
    c.z = 0;
    Run(c);
    EXPECT_NEAR(Session.IsoU0(0), 0, 1e-20);
    EXPECT_GT(Session.IsoU0(0), 0);
    EXPECT_NEAR(Session.IsoU0(1), 3 * 7854 / (2 * std::numbers::pi * std::pow(10, 2.5)), 1e-3);
}

TEST_F(Rate, RectangleGivesNewmarkStressAtItsCentre) {
    RateCase c;
    c.Pressure = false;
    Run(c);
    // Newmark (1935), four corners of 1 m x 1 m at depth z, m = n = 1/z.
    for (int node = 0; node <= 4; ++node) {
        const double z = 1 + node, m = 1 / z, V = 2 * m * m + 1;
        double angle = std::atan(2 * m * m * std::sqrt(V) / (V - m * m * m * m));
        if (angle < 0) angle += std::numbers::pi;
        const double corner =
            (2 * m * m * std::sqrt(V) / (V + m * m * m * m) * (V + 1) / V + angle) / (4 * std::numbers::pi);
        EXPECT_NEAR(Session.IsoU0(node), 4 * corner * 150, 1e-3) << "node " << node;
    }
}

TEST_F(Rate, ConstantPressureAsksForNoLoad) {
    RateCase c;
    c.z = 0;  // would divide by zero under a rectangle
    c.LoadType = 3;
    Session.PrefND = 0;  // would have no mesh
    Run(c);
    EXPECT_THAT(NumbersOf(Session.IsoU0), ElementsAre(100, 100, 100, 100, 100));
}

// --- the circular load's own numbering ---

// Axis of a circle (Boussinesq 1885; Love 1929): p (1 - (1 + (a/z)^2)^(-3/2)).
double AxisStress(double p, double a, double z) {
    return p * (1 - std::pow(1 + a * a / (z * z), -1.5));
}

TEST_F(Rate, CircleMovesPressuresUpOneNodeAndSkipsEverySecondDepthDeliberately) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 3;
    c.A = 4;
    c.z = 2;
    Run(c);
    EXPECT_EQ(Session.PrefDz, 1);
    // d grows by PrefDz and by dz: depths 2, 4, 6, 8 in the nodes 0 to 3. 2 % is the mesh's accuracy here.
    for (int m = 0; m <= 3; ++m)
        EXPECT_NEAR(Session.IsoU0(m), AxisStress(150, 4, 2 + 2 * m), 0.02 * AxisStress(150, 4, 2 + 2 * m));
}

TEST_F(Rate, CircleLeavesTheLastNodeIdleDeliberately) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 3;
    Run(c);
    EXPECT_EQ(Session.IsoU0(4), 0);
    EXPECT_EQ(Session.IsoUf(4), 0);
}

TEST_F(Rate, CircleDoesNotDrainNode0Deliberately) {
    RateCase c = StepCase(4);
    c.Pressure = false;
    c.LoadType = 3;
    c.A = 4;
    c.z = 2;
    c.T = TimeOfSteps(c, 2);
    Run(c);
    // Rows: interior in the nodes 0 to 2, drained in node 3, none in node 4.
    const double u0 = Session.IsoU0(0), u1 = Session.IsoU0(1), u2 = Session.IsoU0(2), u3 = Session.IsoU0(3) / 2;
    const double a0 = 2 * u0 / 3 + u1 / 6, a1 = u0 / 6 + 2 * u1 / 3 + u2 / 6, a2 = u1 / 6 + 2 * u2 / 3 + u3 / 6;
    EXPECT_THAT(NumbersOf(Session.IsoUf),
                Pointwise(IsNear(kTolerance), std::vector<double>{2 * a0 / 3 + a1 / 6, a0 / 6 + 2 * a1 / 3 + a2 / 6,
                                                                  a1 / 6 + 2 * a2 / 3, 0, 0}));
}

TEST_F(Rate, CircleWorksOnTheSurface) {
    RateCase c;
    c.Pressure = false;
    c.LoadType = 3;
    c.z = 0;
    Run(c);
    EXPECT_EQ(Session.IsoU0(0), 150) << "right under the load";
}

TEST_F(Rate, CircleOverTwoLayersNumbersTheInterfaceOneNodeUp) {
    RateCase c = StepCase(4);
    c.NumLayers = 2;
    c.K = Array<Single>::Of({1, 3});
    c.Pressure = false;
    c.LoadType = 3;
    c.A = 4;
    c.T = TimeOfSteps(c, 2);
    Run(c);
    // The interface row stands in node 3, the drained row in node 7, none in node 8; node 4 starts at the top of
    // layer 2.
    const std::vector<double> u = NumbersOf(Session.IsoU0);
    EXPECT_NEAR(u[4], AxisStress(150, 4, 5), 0.02 * 150);
    EXPECT_EQ(u[8], 0);
    const auto interior = [](double above, double here, double below) { return above / 6 + 2 * here / 3 + below / 6; };
    const double a1 = interior(u[0], u[1], u[2]), a2 = interior(u[1], u[2], u[3]), a4 = interior(u[3], u[4], u[5]),
                 a5 = interior(u[4], u[5], u[6]);
    const double a3 = u[1] / 24 + u[2] / 6 + u[3] / 6 + u[4] / 2 + u[5] / 8;
    EXPECT_NEAR(Session.IsoUf(3), a1 / 24 + a2 / 6 + a3 / 6 + a4 / 2 + a5 / 8, kTolerance);
    EXPECT_EQ(Session.IsoUf(7), 0);
}

// --- linearity ---

TEST_F(Rate, UcDoesNotDependOnTheSizeOfTheInitialPressure) {
    RateCase c = StepCase(10);
    c.T = 4;
    Run(c);
    const double Uc = Session.Uc, uf = Session.IsoUf(3);
    c.U = 800;  // eight times: the same digits
    Run(c);
    EXPECT_EQ(Session.Uc, Uc);
    EXPECT_EQ(Session.IsoUf(3), 8 * uf);
}

}  // namespace
}  // namespace lithmark::tests
