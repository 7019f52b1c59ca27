#include "kernels/timesettlement/BasTimeSettlement.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "core/TimeUnits.h"
#include "kernels/timesettlement/HistoryNotices.h"
#include "kernels/timesettlement/HistoryTables.h"
#include "kernels/timesettlement/SuddenLoadCurve.h"
#include "kernels/timesettlement/TimeSettlementRun.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

void ZeroResults() {
    for (Array<Single>* curve :
         {&Session.LoadCurve, &Session.SuddenPercent, &Session.SuddenSettlement, &Session.SettlementSum,
          &Session.LoadChartTime, &Session.LoadChartNew, &Session.LoadChartPrev})
        curve->Redim(0, kLastSlot);
    Session.ConsolidationEnd = 0;
}

// Stretches the load table to all slots, the load held flat between rows.
void BuildLoadCurve(TimeSettlementRun& run) {
    Array<Single>& LoadCurve = Session.LoadCurve;
    int prev = 0;
    int next = 1;
    for (int k = 1; k <= Session.NLoad; ++k) {
        const int m = Session.LoadTime(k);
        LoadCurve(m) = Session.LoadValue(k);
        run.LoadForce(m) = Session.Pt * LoadCurve(m) / 100;
        if (m > prev + 1) {
            for (int j = prev + 1; j <= m - 1; ++j) {
                LoadCurve(j) = LoadCurve(prev);
                run.LoadForce(j) = run.LoadForce(prev);
                run.LoadMark(j) = " ";
            }
            next = m;
        }
        run.LoadMark(next) = Text(300050_text);
        ++next;
        run.LoadMark(next) = " ";
        prev = m;
    }
    for (int j = next; j <= kLastSlot; ++j) {
        LoadCurve(j) = LoadCurve(next - 1);
        run.LoadForce(j) = run.LoadForce(next - 1);
        run.LoadMark(j) = " ";
    }
}

// The corners of the stepped load line. A load step takes two points; the slots are cut by NLoad to keep within 70.
void BuildLoadChart(const TimeSettlementRun& run) {
    const Array<Single>& LoadCurve = Session.LoadCurve;
    const std::string stepMark = Text(300050_text);
    Session.LoadChartPrev(0) = 0;
    Session.LoadChartNew(0) = LoadCurve(1);
    Session.LoadChartTime(0) = 0;
    int c = 0;
    for (int j = 1; j <= kLastSlot - Session.NLoad; ++j) {
        if (run.LoadMark(j) == stepMark) {
            ++c;
            Session.LoadChartNew(c) = LoadCurve(j);
            Session.LoadChartPrev(c) = LoadCurve(j - 1);
            Session.LoadChartTime(c) = j - 1;
        }
        ++c;
        Session.LoadChartNew(c) = LoadCurve(j);
        Session.LoadChartPrev(c) = LoadCurve(j);
        Session.LoadChartTime(c) = j;
    }
}

// False when the run has stopped with a message.
bool BuildSuddenLoadCurve(TimeSettlementRun& run) {
    switch (Session.ProblemType) {
        case Problem::TimeDirect:
            return DirectCurve(run);
        case Problem::TimeOedometer:
            return OedometerCurve(run);
        case Problem::TimeTheory:
            TheoryCurve(run);
            return true;
        default:
            return true;
    }
}

// S(j) = sum over the increments of Sc dP(i) U(j - i)/10^4, both in per cent. A decrease of load counts with its sign.
void Superpose() {
    for (int i = 1; i <= kLastSlot; ++i) {
        const Single increment = Session.LoadCurve(i) - Session.LoadCurve(i - 1);
        for (int j = i; j <= kLastSlot; ++j)
            Session.SettlementSum(j) += Session.Sc * increment * Session.SuddenPercent(j - i) / 10000;
    }
}

void EvaluateMeasurement(TimeSettlementRun& run) {
    const Integer slot = Session.DesignCode + 1;
    for (std::string& mark : run.MeasureMark) mark = " ";
    run.MeasureMark(slot) = Text(300067_text);
    Session.MeasureFactor = Quotient(Session.Sm, Session.SettlementSum(slot));
}

}  // namespace

void ComputeTimeSettlement() {
    const auto calculate = [] {
        SharedServices().SetPointer(PointerShape::Hourglass);
        TimeSettlementRun run;
        ZeroResults();
        run.SecondsPerUnit = SecondsPerTimeUnit(Session.TimeUnit);
        BuildLoadCurve(run);
        BuildLoadChart(run);
        if (!BuildSuddenLoadCurve(run)) {
            Session.CalcAborted = true;
            return;
        }
        Superpose();
        if (Session.Ms) EvaluateMeasurement(run);
        SharedServices().SetPointer(PointerShape::Default);
        WriteTimeSettlementReport(run);
        RaiseHistoryNotices();
        if (Steps().On()) AddHistoryTables();
    };
    RunKernel(calculate, CauseInTimeSettlement);
}

}  // namespace lithmark
