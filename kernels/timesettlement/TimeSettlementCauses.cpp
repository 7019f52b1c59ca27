// Why a run of the problems 6 to 8 failed.
#include <algorithm>

#include "core/Problems.h"
#include "core/Session.h"
#include "core/TimeUnits.h"
#include "kernels/timesettlement/TimeSettlementRun.h"
#include "report/Causes.h"

namespace lithmark {

namespace {

constexpr int kMostWhole = kLastSlot;

// The curve goes through its points by their distances in time, so no two may have the same.
template <typename T>
std::string IfTimesDoNotIncrease(const Array<T>& times, int count) {
    for (int i = 2; i <= std::min(count, times.Upper()); ++i)
        if (!(times(i) > times(i - 1))) return Text(909107_text);
    return {};
}

std::string CauseInHistory() {
    std::string cause;
    const std::string time = QuantityName(300050_text);
    for (int i = 1; i <= std::min<int>(Session.NLoad, Session.LoadTime.Upper()) && cause.empty(); ++i)
        cause = IfOutside(time, Session.LoadTime(i), 0, kMostWhole - 1);
    return cause;
}

std::string CauseInLoads() {
    std::string cause;
    for (int i = 1; i <= std::min<int>(Session.NLoad, Session.LoadValue.Upper()) && cause.empty(); ++i)
        cause = IfExtreme(QuantityName(40087_text), Session.LoadValue(i));
    return cause;
}

std::string CauseInDrainage() {
    const std::string thickness = QuantityName(300025_text);
    return FirstCause({IfZero(thickness, Session.h), IfExtreme(thickness, Session.h)});
}

std::string CauseInTheory() {
    const bool soil = Session.CvChoice == CvFrom::SoilData;
    const std::string preload = QuantityName(300023_text), first = QuantityName(300024_text);
    return FirstCause({CauseInDrainage(), When(soil && Session.qv + Session.qe == 0, IfZero(first, Session.qe)),
                       When(soil && Session.qv + Session.qe == 0, IfNegative(first, Session.qe)),
                       When(soil && Session.qv + Session.qe == 0, IfNegative(preload, Session.qv)),
                       When(!soil, IfNegative(QuantityName(10243_text), Session.CvTS)),
                       When(soil, IfNegative(QuantityName(10242_text), Session.kf)),
                       When(soil, IfNegative(QuantityName(90152_text), Session.EsTS)),
                       When(soil, IfNegative(QuantityName(90153_text), Session.Ws)),
                       IfExtreme(QuantityName(10243_text), Session.CvTS),
                       When(soil, IfExtreme(QuantityName(10242_text), Session.kf))});
}

// A measurement is compared with the settlement computed for its time.
std::string CauseInMeasurement() {
    const bool soil = Session.CvChoice == CvFrom::SoilData;
    const bool theory = Session.ProblemType == Problem::TimeTheory;
    return FirstCause({IfOutside(QuantityName(300028_text), Session.DesignCode, 1, kMostWhole - 1),
                       IfZero(QuantityName(400124_text), Session.Sc),
                       When(theory && soil, IfZero(QuantityName(10242_text), Session.kf)),
                       When(theory && !soil, IfZero(QuantityName(10243_text), Session.CvTS)),
                       When(theory && soil && Session.qv == 0, IfZero(QuantityName(90152_text), Session.EsTS)),
                       When(theory && soil && Session.qe == 0, IfZero(QuantityName(90153_text), Session.Ws))});
}

}  // namespace

std::string CauseInTimeSettlement() {
    const int problem = Session.ProblemType;
    const bool noUnit = problem != Problem::TimeDirect && SecondsPerTimeUnit(Session.TimeUnit) == 0;
    const bool oedometer = problem == Problem::TimeOedometer, direct = problem == Problem::TimeDirect;
    return FirstCause(
        {When(noUnit, Text(905001_text, {{"|1", Session.TimeUnit}})), CauseInHistory(),
         When(direct, direct ? IfTimesDoNotIncrease(Session.StsTime, Session.NSts) : std::string()),
         When(oedometer, IfZero(QuantityName(300035_text), Session.Hm)), When(oedometer, CauseInDrainage()),
         When(oedometer, oedometer ? IfTimesDoNotIncrease(Session.OedTime, Session.NOed) : std::string()),
         When(problem == Problem::TimeTheory, CauseInTheory()), When(Session.Ms, CauseInMeasurement()),
         IfOutside(QuantityName(300071_text), Session.TimePeriod, 1, kMostWhole - 1),
         IfExtreme(QuantityName(400124_text), Session.Sc), IfExtreme(QuantityName(300026_text), Session.Pt),
         When(oedometer, IfExtreme(QuantityName(300035_text), Session.Hm)), CauseInLoads()});
}

}  // namespace lithmark
