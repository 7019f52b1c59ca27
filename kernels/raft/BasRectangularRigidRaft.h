// BasRectangularRigidRaft: settlements and contact pressures of a rigid rectangular raft.
//
// Problem 9: raft on an elastic layer; problem 10: raft on a clay layer (consolidation).
// - Analytical analysis: contact stress of the rigid punch, settlements by superposition on a half-space.
// - Numerical analysis: contact forces at the nodes of a grid; the flexibility matrix of the soil is inverted, and the
//   raft's plane follows from the equilibrium with the eccentric load (compatible settlements after Kany, 1974).
// Assumptions: horizontal uniform soil, smooth base, pressures without a check for tension.
// Lengths in m, forces in kN, stresses and moduli in kN/m2, settlements in cm.
#pragma once

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// Works out the raft and leaves in Session: NodeX to NodeSettlement, the middle row, RaftMeanPressure, ResultText;
// writes the export files of the project.
//
// `z` becomes 0 in the analytical analysis and `h` the limiting depth where one is searched. Session.PrefDx and PrefDy
// become the real element sizes; Session.Nue is overwritten by an analytical run of problem 10. Any failure is told by
// the shared failure routine and sets Session.CalcAborted; export files written so far stay.
void ComputeRectangularRaft(Single& z, Single Q, Single A, Single B, Single& h, Single eo, Single Po, Single Cc,
                            Single Es, Integer SoilPropertyType, Single Exz_x, Single Exz_y, Single Gamma,
                            bool AnalysisType, bool SettlementAt);

}  // namespace lithmark
