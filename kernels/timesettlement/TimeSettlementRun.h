// What one run of the time-settlement calculation holds beside the results that it leaves in Session.
#pragma once

#include <string>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// The last time slot of every curve.
constexpr int kLastSlot = 70;

// The degree of consolidation at which consolidation counts as finished.
inline constexpr Single kFinished{0.97};

struct TimeSettlementRun {
    Single SecondsPerUnit;                      // 0 for a time unit that is none of the four
    Array<Single> LoadForce{0, kLastSlot};      // kN, at time + 1
    Array<std::string> LoadMark{0, kLastSlot};  // remark at a load step
    Array<Single> CurveTime{0, kLastSlot};      // problems 6 and 7: the points in use, in time units
    Array<Single> CurvePercent{0, kLastSlot};   // and per cent; point 0 is (0, 0)
    Array<Single> DegreeU{0, kLastSlot};        // problem 8: degree of consolidation, 0 to 1
    Array<Single> TimeFactor{0, kLastSlot};     // problem 8: Tv
    Array<Integer> FormulaCase{0, kLastSlot};   // problem 8: 1 root, 2 exponential
    Array<std::string> MeasureMark{0, kLastSlot};
    Single EstMix;  // problem 8: modulus weighted by load parts, kN/m2
};

// Starts a new Session.ResultText: heading, parameter block, tables T1 to T4. Throws Failure, also
// for a TimePeriod that asks for a slot beyond the last.
void WriteTimeSettlementReport(const TimeSettlementRun& run);

// Which input made a run fail, as report/Causes.h has it; empty when it was none of them.
std::string CauseInTimeSettlement();

}  // namespace lithmark
