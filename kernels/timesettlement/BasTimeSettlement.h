// The settlement of a building as a function of time while it goes up: problems 6, 7 and 8.
#pragma once

namespace lithmark {

// Computes the time-settlement curve from Session and leaves it there, with the report in Session.ResultText.
//
// - The curve of settlement against time for a load applied suddenly comes from points typed by the user (problem 6),
//   from the readings of one oedometer load stage, scaled by the square of the thicknesses (problem 7), or from the
//   consolidation theory of Terzaghi and Froehlich (1936) (problem 8).
// - The real loading is taken apart into the increment of each time step, and the sudden-load curve is superposed once
//   per increment (linear behaviour; Terzaghi and Froehlich 1936).
// - A settlement measured on the building gives a factor on the computed one, and so a corrected final settlement.
//
// Time runs in whole units (day, week, month or year), slots 0 to 70. LoadCurve and SettlementSum stand at time + 1,
// SuddenPercent and SuddenSettlement at the time since loading itself. Loads in kN and per cent, settlements in cm, Cv
// in m2/s, k in m/s, moduli and pressures in kN/m2, thicknesses in m.
//
// Session.CalcAborted is set when the run stops: after a message when a time lies beyond the curve (problems 6 and 7),
// after the shared failure routine for any run-time failure. A failure ahead of the report leaves the hourglass. A
// theory curve that does not reach 97 % within 70 units is told in a warning, and the run goes on.
void ComputeTimeSettlement();

}  // namespace lithmark
