#include "kernels/timesettlement/SuddenLoadCurve.h"

#include <algorithm>

#include "core/Problems.h"
#include "core/Session.h"
#include "core/TimeUnits.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Where the formula of U changes, a stored constant of 32 bits.
constexpr Single kBranchTimeFactor{1.0 / 12.0};

// The drainage length, m.
Single DrainageLength() {
    switch (Session.DrainageFaces) {
        case Faces::OneSided:
            return Session.h;
        case Faces::Both:
            return Session.h / 2;
        default:
            return 0;
    }
}

// Percentage and settlement of one time.
void SetSudden(int t, Single percent) {
    Session.SuddenPercent(t) = percent;
    Session.SuddenSettlement(t) = Session.Sc * percent / 100;
}

void TellTimeBeyondCurve(TextId title) {
    SharedServices().SetPointer(PointerShape::Default);
    SharedServices().ShowMessageBox(Text(title), Text(400123_text, {{"|1", Session.TimeUnit}}),
                                    MessageIcon::Exclamation);
}

}  // namespace

std::optional<Single> InterpolateCurve(const TimeSettlementRun& run, int n, int t) {
    int p = 0;
    for (int i = 1; i <= n && p == 0; ++i)
        if (t <= run.CurveTime(i)) p = i;
    if (p == n) p = n - 1;
    if (p <= 0) return std::nullopt;

    const Single Ta = run.CurveTime(p - 1), Tb = run.CurveTime(p), Tc = run.CurveTime(p + 1);
    const Single termA = Quotient(run.CurvePercent(p - 1) * (t - Tb) * (t - Tc), (Ta - Tb) * (Ta - Tc));
    const Single termB = Quotient(run.CurvePercent(p) * (t - Ta) * (t - Tc), (Tb - Ta) * (Tb - Tc));
    const Single termC = Quotient(run.CurvePercent(p + 1) * (t - Ta) * (t - Tb), (Tc - Ta) * (Tc - Tb));
    return Single(termA + termB + termC);
}

bool DirectCurve(TimeSettlementRun& run) {
    const int n = Session.NSts;
    for (int i = 1; i <= n; ++i) {
        run.CurvePercent(i) = Session.StsValue(i);
        run.CurveTime(i) = Session.StsTime(i);
    }
    const double lastTime = run.CurveTime(n);
    const Integer last = Integer::Rounded(std::min<double>(lastTime, kLastSlot));
    for (int t = 1; t <= last - 1; ++t) {
        const std::optional<Single> percent = InterpolateCurve(run, n, t);
        if (!percent) {
            TellTimeBeyondCurve(300047_text);
            return false;
        }
        SetSudden(t, *percent);
    }
    SetSudden(last, Session.StsValue(n));
    for (int t = last + 1; t <= kLastSlot; ++t) SetSudden(t, Session.SuddenPercent(last));
    Session.ConsolidationEnd = run.CurveTime(n);
    return true;
}

bool OedometerCurve(TimeSettlementRun& run) {
    const int n = Session.NOed;
    const Single Hb = DrainageLength();
    if (run.SecondsPerUnit == 0) FailTimeUnit(Session.TimeUnit);
    // Deliberate: the specimen's thickness is never halved; one drained at both faces is entered with half of it.
    for (int i = 1; i <= n; ++i)
        run.CurveTime(i) = Quotient(Session.OedTime(i) * 60 * Square(Hb), Square(Session.Hm) * run.SecondsPerUnit);
    // Deliberate: MeasuredUnit stays empty, so readings count as per cent of the final settlement, in whatever unit.
    const bool inMillimetres = Session.MeasuredUnit == Text(42_text);
    for (int i = 1; i <= n; ++i)
        run.CurvePercent(i) = inMillimetres ? Quotient(100 * Session.OedSettlement(i), Session.OedSettlement(n))
                                            : static_cast<double>(Session.OedSettlement(i));
    for (int i = n + 1; i <= kLastSlot; ++i) run.CurvePercent(i) = run.CurvePercent(n);
    // No last point is set apart here: the scaled curve has to reach the last slot.
    for (int t = 1; t <= kLastSlot; ++t) {
        const std::optional<Single> percent = InterpolateCurve(run, n, t);
        if (!percent) {
            TellTimeBeyondCurve(300048_text);
            return false;
        }
        SetSudden(t, *percent);
    }
    Session.ConsolidationEnd = run.CurveTime(n);
    return true;
}

void TheoryCurve(TimeSettlementRun& run) {
    const Single Hb = DrainageLength();
    if (Session.CvChoice == CvFrom::SoilData) {
        run.EstMix = Quotient(Session.Ws * Session.qv + Session.EsTS * Session.qe, Session.qv + Session.qe);
        Session.CvTS = Session.kf * run.EstMix / 9.81;
    }
    int reached = 0;
    for (int t = 1; t <= kLastSlot && reached == 0; ++t) {
        run.TimeFactor(t) = Quotient(Session.CvTS * t * run.SecondsPerUnit, Square(Hb));
        if (run.TimeFactor(t) <= kBranchTimeFactor) {
            run.DegreeU(t) = 2 * Sqrt(run.TimeFactor(t) / 3);
            run.FormulaCase(t) = 1;
        } else {
            run.DegreeU(t) = 1 - 0.666666 * Exp(-(3 * run.TimeFactor(t) - 0.25));
            run.FormulaCase(t) = 2;
        }
        Session.SuddenPercent(t) = run.DegreeU(t) * 100;
        Session.SuddenSettlement(t) = Session.Sc * run.DegreeU(t);
        if (run.DegreeU(t) >= kFinished) reached = t;
    }
    if (reached == 0) {
        SharedServices().ShowMessageBox(Text(300033_text),
                                        Text(300074_text) + "70" + " " + Session.TimeUnit + Text(300075_text),
                                        MessageIcon::Exclamation);
        Session.ConsolidationEnd = kLastSlot;
        return;
    }
    for (int t = reached + 1; t <= kLastSlot; ++t) {
        run.DegreeU(t) = 1;
        run.TimeFactor(t) = run.TimeFactor(reached);
        run.FormulaCase(t) = run.FormulaCase(reached);
        Session.SuddenPercent(t) = 100;
        Session.SuddenSettlement(t) = Session.Sc;
    }
    Session.ConsolidationEnd = reached;
}

}  // namespace lithmark
