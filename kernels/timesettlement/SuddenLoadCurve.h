// The curve of settlement against time for a load applied suddenly, by three methods.
//
// Each fills Session.SuddenPercent (per cent of Sc) and Session.SuddenSettlement (cm) at the times 1 to 70 since
// loading, and Session.ConsolidationEnd.
#pragma once

#include <optional>

#include "kernels/timesettlement/TimeSettlementRun.h"

namespace lithmark {

// Problem 6: through the NSts points of StsTime and StsValue; from the last point on the curve stays level. False,
// after a message and with the pointer set back, when a time lies beyond the curve.
bool DirectCurve(TimeSettlementRun& run);

// Problem 7: through the NOed readings of an oedometer load stage. Consolidation times stand as the squares of the
// drainage lengths (Terzaghi 1925): t = Tm 60 Hb^2/(Hm^2 SecondsPerUnit), Hb = h, or h/2 with drainage at both faces.
// False as above.
bool OedometerCurve(TimeSettlementRun& run);

// Problem 8: Tv = Cv t SecondsPerUnit/Hb^2 and, after Terzaghi and Froehlich (1936),
//   U = 2 sqrt(Tv/3)                         for Tv <= 1/12,
//   U = 1 - 0.666666 exp(-(3 Tv - 1/4))      beyond,
// the parabolic approximation of the isochrones. From 97 % on consolidation counts as complete and the curve jumps to
// 100 %. With CvChoice 1, Session.CvTS = kf Est/9.81 with Est = (Ws qv + EsTS qe)/(qv + qe). A curve that stays below
// 97 % is told in a warning and keeps what it has reached.
void TheoryCurve(TimeSettlementRun& run);

// Three-point Lagrange interpolation of the points 0 to n at the time t, per cent; the parabola may overshoot. Nothing
// when t lies beyond the points or n is below 2. DivisionByZero when two of its three times are equal.
std::optional<Single> InterpolateCurve(const TimeSettlementRun& run, int n, int t);

}  // namespace lithmark
