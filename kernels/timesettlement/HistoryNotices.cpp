#include "kernels/timesettlement/HistoryNotices.h"

#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/timesettlement/TimeSettlementRun.h"
#include "report/Measured.h"
#include "report/Notices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kLastLoadSlot = 69;  // the last one that a load can be entered at
constexpr double kPercentNoise = 1e-4;
constexpr double kComplete = 0.99;  // of the settlement that the load leads to

std::string MeasuredTime(double units) {
    return MeasuredIn(units, Session.TimeUnit);
}

// The measurement's slot is its time + 1, a load's slot the time it was entered for: with the loads one slot later the
// settlement at the measurement is that of the slot before.
void MeasureShift() {
    const int slot = Session.DesignCode + 1;
    const Single later = Session.SettlementSum(slot - 1);
    const double told = Session.MeasureFactor;
    if (later == Session.SettlementSum(slot)) return;
    if (later == 0) {
        Notices().Raise(NoticeId::HistoryShift, 907025_text, {MeasuredNumber(told)});
        return;
    }
    const double f = Session.Sm / later;
    Notices().Raise(NoticeId::HistoryShift, 907024_text,
                    {MeasuredNumber(told), MeasuredNumber(f), MeasuredSettlement(Session.Sc * told),
                     MeasuredSettlement(Session.Sc * f)});
}

void MeasureCurve() {
    const Array<Single>& percent = Session.SuddenPercent;
    int highest = 1, fall = 0;
    for (int t = 1; t <= kLastSlot; ++t) {
        if (percent(t) > percent(highest)) highest = t;
        if (fall == 0 && percent(t) < percent(t - 1) - kPercentNoise) fall = t;
    }
    if (percent(highest) > 100 + kPercentNoise)
        Notices().Raise(NoticeId::HistoryCurve, 907026_text,
                        {MeasuredPercent(percent(highest) / 100), MeasuredTime(highest)});
    if (fall > 0)
        Notices().Raise(
            NoticeId::HistoryCurve, 907027_text,
            {MeasuredPercent(percent(fall - 1) / 100), MeasuredPercent(percent(fall) / 100), MeasuredTime(fall)});
}

void MeasureReadings() {
    if (Session.OedUnit != Text(42_text)) return;
    const double last = Session.OedSettlement(Session.NOed);
    Notices().Raise(NoticeId::HistoryOedometerMm, 907028_text,
                    {MeasuredIn(last, Session.OedUnit), MeasuredPercent(last / 100)});
}

// Where the curves stop at the last slot before the settlement has come to its end.
void MeasureEnd() {
    const double load = Session.LoadCurve(kLastSlot) / 100, lastLoad = Session.LoadTime(Session.NLoad);
    const double whole = Session.Sc * load, reached = Session.SettlementSum(kLastSlot);
    const bool atTheEnd = lastLoad >= kLastLoadSlot || Session.ConsolidationEnd >= kLastSlot;
    const bool cut = lastLoad + Session.ConsolidationEnd >= kLastSlot && reached < kComplete * whole;
    if (!atTheEnd && !cut) return;
    Notices().Raise(NoticeId::HistoryEnd, 907034_text,
                    {MeasuredTime(Session.ConsolidationEnd), MeasuredTime(lastLoad), MeasuredTime(kLastSlot),
                     MeasuredSettlement(reached), MeasuredSettlement(whole)});
}

}  // namespace

void RaiseHistoryNotices() {
    if (Session.Ms) MeasureRun([] { MeasureShift(); });
    MeasureRun([] { MeasureCurve(); });
    if (Session.ProblemType == Problem::TimeOedometer) MeasureRun([] { MeasureReadings(); });
    MeasureRun([] { MeasureEnd(); });
}

}  // namespace lithmark
