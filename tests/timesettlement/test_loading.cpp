// Load curve, chart points, superposition and measurement, by hand.

#include <gmock/gmock.h>

#include "TimeCase.h"

namespace lithmark::tests {
namespace {

class Loading : public TimeSettlementTest {
  protected:
    Loading() { StartTimeSettlement(6); }
};

TEST_F(Loading, DefaultTableIsHeldFlatBetweenItsRows) {
    RunWell();
    const double expected[] = {0, 19, 42, 42, 83, 83, 83, 94, 94, 94, 94, 94, 100, 100};
    for (int j = 0; j <= 13; ++j) EXPECT_EQ(Session.LoadCurve(j), expected[j]) << "slot " << j;
    for (int j = 13; j <= 70; ++j) EXPECT_EQ(Session.LoadCurve(j), 100) << "slot " << j;
}

TEST_F(Loading, SlotsAheadOfTheFirstRowCarryNoLoad) {
    SetLoads({{5, 60}, {6, 100}});
    Session.DesignCode = 10;
    RunWell();
    for (int j = 0; j <= 4; ++j) {
        EXPECT_EQ(Session.LoadCurve(j), 0);
        EXPECT_EQ(Session.SettlementSum(j), 0);
    }
    EXPECT_EQ(Session.SettlementSum(5), 0) << "an increment adds nothing in its own slot";
    EXPECT_GT(Session.SettlementSum(6), 0);
}

// The corners of the stepped line: two points at each load step.
TEST_F(Loading, ChartTakesTwoPointsAtALoadStep) {
    RunWell();
    const double time[] = {0, 0, 1, 1, 2, 3, 3, 4, 5, 6, 6, 7};
    const double now[] = {19, 19, 19, 42, 42, 42, 83, 83, 83, 83, 94, 94};
    const double before[] = {0, 0, 19, 19, 42, 42, 42, 83, 83, 83, 83, 94};
    for (int c = 0; c < 12; ++c) {
        EXPECT_EQ(Session.LoadChartTime(c), time[c]) << "point " << c;
        EXPECT_EQ(Session.LoadChartNew(c), now[c]) << "point " << c;
        EXPECT_EQ(Session.LoadChartPrev(c), before[c]) << "point " << c;
    }
    // Slots 1 to 70 - 5, and 5 second points: the last is point 70.
    EXPECT_EQ(Session.LoadChartTime(70), 65);
    EXPECT_EQ(Session.LoadChartNew(70), 100);
}

// Sc = 10 cm; curve 50, 80, 100 % at 1, 2, 3; 40 % at slot 1 and 60 % more at slot 3:
// S(slot) = 10 (0.4 U(slot - 1) + 0.6 U(slot - 3)).
TEST_F(Loading, TwoLoadStepsAreSuperposed) {
    Session.Sc = 10;
    SetCurve({{1, 50}, {2, 80}, {3, 100}});
    SetLoads({{1, 40}, {3, 100}});
    RunWell();
    const double expected[] = {0, 0, 2, 3.2, 4 + 3, 4 + 4.8, 10, 10};
    for (int j = 0; j <= 7; ++j) EXPECT_NEAR(Session.SettlementSum(j), expected[j], 1e-5) << "slot " << j;
}

TEST_F(Loading, SuperpositionIsLinearInTheLoad) {
    SetLoads({{2, 100}});
    RunWell();
    std::vector<double> whole(71);
    for (int j = 0; j <= 70; ++j) whole[static_cast<std::size_t>(j)] = Session.SettlementSum(j);
    SetLoads({{2, 30}, {9, 100}});
    RunWell();
    for (int j = 2; j <= 70; ++j) {
        const double later = j >= 7 ? whole[static_cast<std::size_t>(j - 7)] : 0;
        EXPECT_NEAR(Session.SettlementSum(j), 0.3 * whole[static_cast<std::size_t>(j)] + 0.7 * later, 1e-5)
            << "slot " << j;
    }
}

TEST_F(Loading, ADecreaseOfLoadCountsWithItsSign) {
    Session.Sc = 10;
    SetCurve({{1, 50}, {2, 80}, {3, 100}});
    SetLoads({{1, 100}, {2, 60}});
    RunWell();
    EXPECT_NEAR(Session.SettlementSum(3), 10 * (0.8 - 0.4 * 0.5), 1e-5);
    EXPECT_NEAR(Session.SettlementSum(70), 6, 1e-5);
}

TEST_F(Loading, ATableThatEndsBelow100PerCentEndsAtThatPartOfSc) {
    Session.Sc = 10;
    SetLoads({{1, 20}, {5, 75}});
    RunWell();
    EXPECT_NEAR(Session.SettlementSum(70), 7.5, 1e-5);
}

TEST_F(Loading, FullLoadAndAFullCurveEndAtSc) {
    RunWell();
    EXPECT_NEAR(Session.SettlementSum(70), 12.1, 1e-5);
}

// S at time 4, slot 5, by hand: 12.1 (0.19 U(4) + 0.23 U(3) + 0.41 U(1)), U = 97, 89, 49 %.
TEST_F(Loading, MeasurementOfTheDefaultsByHand) {
    RunWell();
    const double computed = 12.1 * (0.19 * 0.97 + 0.23 * 0.89 + 0.41 * 0.49);
    EXPECT_NEAR(Session.SettlementSum(5), computed, 1e-5);
    EXPECT_NEAR(Session.MeasureFactor, 4.61 / computed, 1e-6);
}

TEST_F(Loading, WithoutAMeasurementTheFormerFactorStays) {
    Session.Ms = false;
    Session.MeasureFactor = 7;
    RunWell();
    EXPECT_EQ(Session.MeasureFactor, 7);
}

TEST_F(Loading, ARunLeavesNothingOfTheOneBefore) {
    RunWell();
    SetLoads({{3, 100}});
    SetCurve({{2, 100}});  // one point: t = 1 lies on no parabola
    Run();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(Session.LoadCurve(1), 0);
    for (int j = 0; j <= 70; ++j) {
        EXPECT_EQ(Session.SuddenPercent(j), 0);
        EXPECT_EQ(Session.SettlementSum(j), 0);
    }
}

// Deliberate: a history is taken in the order in which it stands. Row (4, 50) fills the slots up to 4 with 0; row
// (2, 100) overwrites slot 2, and what follows slot 5, which no row has reached, stays without load.
TEST_F(Loading, AHistoryOutOfOrderEndsWithoutLoadBehindItsLatestTime) {
    SetLoads({{4, 50}, {2, 100}});
    RunWell();
    const double expected[] = {0, 0, 100, 0, 50, 0, 0};
    for (int j = 0; j <= 6; ++j) EXPECT_EQ(Session.LoadCurve(j), expected[j]) << "slot " << j;
    EXPECT_EQ(Session.LoadCurve(70), 0);
}

// Deliberate: slot 0 is the state ahead of the first time; the row after it comes one slot too early and is not held.
TEST_F(Loading, ARowAtTimeZeroLeavesTheRowAfterItUnheld) {
    SetLoads({{0, 30}, {1, 100}});
    RunWell();
    const double expected[] = {30, 100, 0, 0};
    for (int j = 0; j <= 3; ++j) EXPECT_EQ(Session.LoadCurve(j), expected[j]) << "slot " << j;
    // + 70 % at slot 1, - 100 % at slot 2.
    EXPECT_NEAR(Session.SettlementSum(70), -0.3 * 12.1, 1e-5);
}

TEST_F(Loading, OneRowIsOneIncrement) {
    SetLoads({{1, 100}});
    RunWell();
    for (int t = 0; t <= 69; ++t)
        EXPECT_NEAR(Session.SettlementSum(t + 1), 12.1 * Session.SuddenPercent(t) / 100, 1e-5);
}

}  // namespace
}  // namespace lithmark::tests
