// How a run ends that cannot be calculated: with a message of its own, or in the shared failure routine. A failure
// ahead of the report leaves the hourglass.
#include "TimeCase.h"
#include "services/SharedServices.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class TimeFailure : public TimeSettlementTest {
  protected:
    void Start(int problemType, Language language = Language::English) {
        StartTimeSettlement(problemType, language);
        Session.ResultText = "old report";
        host.Messages.clear();
        host.Pointers.clear();
    }
    void ExpectFailure(FailureKind kind, PointerShape pointer = PointerShape::Hourglass) {
        Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.Messages[0].Text, HasSubstr(SharedServices().FailureText(Failure(kind))));
        EXPECT_EQ(host.Pointer(), pointer);
        if (pointer == PointerShape::Hourglass) {
            EXPECT_EQ(Session.ResultText, "old report");
        }
    }
    // The run ends in it with a cause that the input tells.
    void ExpectCause(const std::string& cause, PointerShape pointer = PointerShape::Hourglass) {
        Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.Messages[0].Text, HasSubstr("The calculation was stopped: " + cause + "."));
        EXPECT_EQ(host.Pointer(), pointer);
    }
    // The message that a time lies beyond the curve, with the pointer set back.
    void ExpectTimeBeyondCurve(TextId title) {
        Run();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.Messages[0].Title, Text(title));
        EXPECT_EQ(host.Messages[0].Text, Text(400123_text, {{"|1", Session.TimeUnit}}));
        EXPECT_THAT(host.Messages[0].Text, HasSubstr(Session.TimeUnit));
        EXPECT_EQ(host.Messages[0].Icon, MessageIcon::Exclamation);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
        EXPECT_EQ(Session.ResultText, "old report");
    }
};

// --- messages of its own ---

TEST_F(TimeFailure, DirectCurveOfOnePointEndsWithTheMessage) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        Start(6, language);
        SetCurve({{5, 100}});
        ExpectTimeBeyondCurve(300047_text);
    }
}

TEST_F(TimeFailure, DirectCurveOfOnePointWorksWhenItsTimeRoundsTo1) {
    Start(6);
    SetCurve({{1.4, 80}});
    RunWell();
    EXPECT_EQ(Session.SuddenPercent(1), 80);
    EXPECT_EQ(Session.SuddenPercent(70), 80);
}

TEST_F(TimeFailure, ALastPointAtTimeZeroCountsAtOnceAndForEver) {
    Start(6);
    SetCurve({{0.5, 80}});  // a half rounds to 0
    RunWell();
    EXPECT_EQ(Session.SuddenPercent(0), 80);
    EXPECT_EQ(Session.SuddenPercent(70), 80);
    // An increment counts in its own slot now: 12.1 0.19 0.8.
    EXPECT_NEAR(Session.SettlementSum(1), 12.1 * 0.19 * 0.8, 1e-5);
}

TEST_F(TimeFailure, OedometerCurveThatDoesNotReachSlot70EndsWithTheMessage) {
    Start(7);
    Session.TimeUnit = Text(10004_text);  // 1440 minutes are 121 years: reached
    RunWell();
    Start(7);
    Session.TimeUnit = Text(10004_text);
    SetReadings({{0.25, 14}, {1, 28}, {60, 100}});  // 60 minutes are 5 years
    ExpectTimeBeyondCurve(300048_text);
}

TEST_F(TimeFailure, OedometerWithALayerOfNoThicknessEndsWithTheMessage) {
    Start(7);
    Session.h = 0;
    ExpectTimeBeyondCurve(300048_text);
}

TEST_F(TimeFailure, OedometerOfOneReadingOrNoneEndsWithTheMessage) {
    Start(7);
    SetReadings({{1440, 1.3}});
    ExpectTimeBeyondCurve(300048_text);
    Start(7);
    SetReadings({});
    ExpectTimeBeyondCurve(300048_text);
}

TEST_F(TimeFailure, TheoryWithCvZeroWarnsAndThenFailsOnTheMeasurement) {
    Start(8);
    Session.CvChoice = 3;
    Session.CvTS = 0;
    Run();
    EXPECT_TRUE(Session.CalcAborted);
    ASSERT_EQ(host.Messages.size(), 2u);
    EXPECT_EQ(host.Messages[0].Title, Text(300033_text));
    EXPECT_THAT(host.Messages[1].Text, HasSubstr("coefficient of consolidation is 0."));
    EXPECT_EQ(host.Pointer(), PointerShape::Hourglass);
}

TEST_F(TimeFailure, TheoryWithCvZeroAndNoMeasurementWarnsAndReportsNoSettlement) {
    Start(8);
    Session.CvChoice = 3;
    Session.CvTS = 0;
    Session.Ms = false;
    Run();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(Session.SettlementSum(70), 0);
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
}

// --- the shared failure routine ---

TEST_F(TimeFailure, ALoadTimeOf70OrBeyondIsOutOfRange) {
    for (const double time : {70.0, 71.0, 200.0, 32767.0, -1.0}) {
        Start(6);
        SetLoads({{1, 50}, {time, 100}});
        ExpectCause("load step is not between 0 and 69");
    }
}

TEST_F(TimeFailure, ALoadTimeOf69Works) {
    Start(6);
    SetLoads({{1, 50}, {69, 100}});
    RunWell();
    EXPECT_EQ(Session.LoadCurve(68), 50);
    EXPECT_EQ(Session.LoadCurve(70), 100);
}

// Each row of the same time takes one more mark; the seventieth runs out of slots.
TEST_F(TimeFailure, AVeryLongHistoryEnds) {
    Start(6);
    SetLoads(Rows(32767, {1, 100}));
    ExpectFailure(FailureKind::SubscriptRange);
}

TEST_F(TimeFailure, ACountBeyondTheTableIsOutOfRange) {
    Start(6);
    Session.NLoad = 6;
    ExpectFailure(FailureKind::SubscriptRange);
    Start(6);
    Session.NSts = 6;
    ExpectFailure(FailureKind::SubscriptRange);
    Start(7);
    Session.NOed = 11;
    ExpectFailure(FailureKind::SubscriptRange);
}

TEST_F(TimeFailure, MoreThan70PointsAreOutOfRange) {
    for (const int problem : {6, 7}) {
        Start(problem);
        Rows rows;
        for (int i = 1; i <= 71; ++i) rows.emplace_back(i * 100.0, i);
        SetCurve(rows);
        SetReadings(rows);
        ExpectFailure(FailureKind::SubscriptRange);
    }
}

TEST_F(TimeFailure, DirectCurveWithoutPointsIsOutOfRange) {
    Start(6);
    SetCurve({});
    ExpectFailure(FailureKind::SubscriptRange);
}

TEST_F(TimeFailure, DirectCurveWithEqualTimesIsADivisionByZero) {
    Start(6);
    SetCurve({{2, 50}, {2, 60}, {5, 100}});
    ExpectCause("the times of the table do not increase");
}

TEST_F(TimeFailure, DirectCurveThatEndsAheadOfTimeZeroFails) {
    Start(6);
    SetCurve({{1, 50}, {-5, 100}});
    ExpectCause("the times of the table do not increase");
    Start(6);
    SetCurve({{1, 50}, {-1e9, 100}});
    ExpectCause("the times of the table do not increase");
}

TEST_F(TimeFailure, ASpecimenOfNoThicknessIsADivisionByZero) {
    Start(7);
    Session.Hm = 0;
    ExpectCause("thickness of the oedometer specimen is 0");
}

TEST_F(TimeFailure, OedometerWithAnUnknownTimeUnitIsADivisionByZero) {
    Start(7);
    Session.TimeUnit = "[fortnight]";
    ExpectCause("the time unit \"[fortnight]\" is unknown");
}

TEST_F(TimeFailure, AnUnknownTimeUnitDoesNotMatterForADirectCurve) {
    Start(6);
    Session.TimeUnit = "[fortnight]";
    RunWell();
}

TEST_F(TimeFailure, TheoryWithAnUnknownTimeUnitStandsStillAndFailsOnTheMeasurement) {
    Start(8);
    Session.TimeUnit = "[fortnight]";
    Run();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host.Messages.size(), 2u);
}

// As after a change of language: the file keeps the word of the one in which it was written.
TEST_F(TimeFailure, TheoryWithAnUnknownTimeUnitAndNoMeasurementOnlyWarnsAndReportsNoSettlement) {
    Start(8);
    Session.TimeUnit = "Wochen";
    Session.Ms = false;
    Run();
    EXPECT_FALSE(Session.CalcAborted);
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.Messages[0].Text, HasSubstr("Wochen"));
    EXPECT_EQ(Session.SuddenPercent(70), 0);
    EXPECT_EQ(Session.SettlementSum(70), 0);
    EXPECT_EQ(Session.ConsolidationEnd, 70);
}

TEST_F(TimeFailure, TheoryWithoutThicknessIsADivisionByZero) {
    Start(8);
    Session.h = 0;
    ExpectCause("thickness of the compressible layer is 0");
    Start(8);
    Session.DrainageFaces = 0;
    ExpectFailure(FailureKind::DivisionByZero);
}

TEST_F(TimeFailure, NoLoadPartsAtAllAreADivisionByZeroWhereCvIsComputed) {
    Start(8);
    Session.qv = 0;
    Session.qe = 0;
    ExpectCause("first loading under the foundation is 0");
    Start(8);
    Session.qv = 0;
    Session.qe = 0;
    Session.CvChoice = 3;
    Session.CvTS = 0.0001;
    Run();
    EXPECT_FALSE(Session.CalcAborted);
}

TEST_F(TimeFailure, ANegativeCvHasNoRoot) {
    Start(8);
    Session.CvChoice = 3;
    Session.CvTS = -0.0001;
    ExpectCause("coefficient of consolidation is negative");
}

TEST_F(TimeFailure, AThinLayerWhoseTimeFactorDoesNotFit32BitsIsAnOverflow) {
    Start(8);
    Session.h = 1e-20;
    ExpectCause("thickness of the compressible layer is too small");
}

TEST_F(TimeFailure, AVeryThickLayerOnlyWarns) {
    Start(8);
    Session.h = 1e18;
    Session.Ms = false;
    Run();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_EQ(host.Messages.size(), 1u);
}

TEST_F(TimeFailure, AMeasurementAheadOfAnySettlementIsADivisionByZero) {
    Start(6);
    Session.DesignCode = 0;  // slot 1: nothing has settled
    ExpectCause("time of the measurement is not between 1 and 69");
}

TEST_F(TimeFailure, AMeasurementBeyondTheSlotsIsOutOfRange) {
    for (const int time : {70, 200, -2}) {
        Start(6);
        Session.DesignCode = time;
        ExpectCause("time of the measurement is not between 1 and 69");
    }
    Start(6);
    Session.DesignCode = 32767;
    ExpectCause("time of the measurement is not between 1 and 69");
}

TEST_F(TimeFailure, AHistoryWithoutRowsHasNoSettlementToMeasure) {
    Start(6);
    SetLoads({});
    ExpectFailure(FailureKind::DivisionByZero);
    Start(6);
    SetLoads({});
    Session.Ms = false;
    RunWell();
    EXPECT_EQ(Session.LoadCurve(70), 0);
}

// The tables read one slot more than the period: 70 units fail there, with the pointer set back already.
TEST_F(TimeFailure, APeriodOf70FailsInTheThirdTable) {
    Start(6);
    Session.TimePeriod = 70;
    ExpectCause("time period is not between 1 and 69", PointerShape::Default);
}

TEST_F(TimeFailure, APeriodOf69Works) {
    Start(6);
    Session.TimePeriod = 69;
    RunWell();
}

TEST_F(TimeFailure, ANegativePeriodIsOutOfRange) {
    Start(6);
    Session.TimePeriod = -1;
    ExpectCause("time period is not between 1 and 69", PointerShape::Default);
}

TEST_F(TimeFailure, AGoodRunAfterAFailedOneIsAsEver) {
    Start(8);
    Session.h = 0;
    Run();
    host.Messages.clear();
    Session.h = 8;
    RunWell();
}

}  // namespace
}  // namespace lithmark::tests
