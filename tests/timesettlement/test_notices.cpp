// Notices of the problems 6 to 8: what raises each, and what close by does not.
#include "report/Measured.h"
#include "support/Matchers.h"
#include "support/Raised.h"
#include "timesettlement/TimeCase.h"

namespace lithmark::tests {
namespace {

class HistoryNotices : public TimeSettlementTest {};

TEST_F(HistoryNotices, TheShiftOfLoadsAgainstTheMeasurementIsTold) {
    StartTimeSettlement(6);
    Run();
    // The measurement at time 4 stands at slot 5, the loads of times 1, 2, 4 at slots 1, 2, 4: by the curve of 49, 74,
    // 89, 97 % the settlement is 12.1 (19*0.97 + 23*0.89 + 41*0.49)/100, and with the loads one slot later
    // 12.1 (19*0.89 + 23*0.74)/100.
    const double told = 4.61 / (0.121 * (19 * 0.97 + 23 * 0.89 + 41 * 0.49));
    const double later = 4.61 / (0.121 * (19 * 0.89 + 23 * 0.74));
    EXPECT_THAT(Told(NoticeId::HistoryShift), HasSubstr("the factor is " + MeasuredNumber(told)));
    EXPECT_THAT(Told(NoticeId::HistoryShift), HasSubstr("own times " + MeasuredNumber(later)));
    EXPECT_THAT(Told(NoticeId::HistoryShift), HasSubstr(MeasuredSettlement(12.1 * later)));

    Session.DesignCode = 1;  // one unit later there would be no load yet
    Run();
    EXPECT_THAT(Told(NoticeId::HistoryShift), HasSubstr("no settlement yet"));
    // Five units behind the last load (12 in the table, 11 by its slot) the settlement has come to its end.
    Session.DesignCode = 16;
    Run();
    EXPECT_TRUE(Raised(NoticeId::HistoryShift));
    Session.DesignCode = 17;
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryShift));
    Session.Ms = false;  // nothing to hold the history against
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryShift));
}

TEST_F(HistoryNotices, ACurveAboveTheWholeOrFallingIsTold) {
    StartTimeSettlement(6);
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryCurve));
    // The parabola through (0, 0), (1, 90), (10, 100) has its top far above 100 and falls behind it.
    SetCurve({{1, 90}, {10, 100}});
    Run();
    EXPECT_THAT(Told(NoticeId::HistoryCurve), HasSubstr("goes up to"));
    EXPECT_THAT(Told(NoticeId::HistoryCurve), HasSubstr("falls from"));
}

TEST_F(HistoryNotices, ReadingsInMillimetresAreTold) {
    StartTimeSettlement(7);
    Run();
    EXPECT_THAT(Told(NoticeId::HistoryOedometerMm), HasSubstr("1.309 mm, as 1.309 %"));
    Session.OedUnit = "[%]";
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryOedometerMm));
}

TEST_F(HistoryNotices, AHistoryThatReachesTheLastSlotIsTold) {
    StartTimeSettlement(6);
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryEnd));
    SetLoads({{1, 50}, {69, 100}});  // the last time that a load can be entered for
    Run();
    EXPECT_TRUE(Raised(NoticeId::HistoryEnd));
    SetLoads({{1, 50}, {67, 100}});  // 5 units of consolidation behind 67: cut at 70
    Run();
    EXPECT_TRUE(Raised(NoticeId::HistoryEnd));
    SetLoads({{1, 50}, {64, 100}});  // complete at 69
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryEnd));
    SetLoads({{1, 100}});
    SetCurve({{1, 49}, {2, 74}, {70, 100}});
    Run();
    EXPECT_TRUE(Raised(NoticeId::HistoryEnd));
    SetCurve({{1, 49}, {2, 74}, {60, 100}});
    Run();
    EXPECT_FALSE(Raised(NoticeId::HistoryEnd));
}

}  // namespace
}  // namespace lithmark::tests
