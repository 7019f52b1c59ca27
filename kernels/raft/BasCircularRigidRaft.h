// Rigid circular raft: settlements, contact pressures and forces on an elastic layer (problem 9) or on a clay layer
// (problem 10).
//
// - The raft of radius A carries Q [kN] at the eccentricity Exz_x [m] along x; it is smooth, weightless and stays
//   plane.
// - The mesh is that of PolarMesh.h with Session.PrefND divisions. The unknowns are the contact forces at its nodes.
// - Analytical analysis: the contact pressure of a rigid punch on a half-space (Boussinesq, 1885), settlements by a
//   closed form or by superposition (CircularPunch.h); the layer begins at the surface and `h` plays no part, but the
//   clay by Cc has its limiting depth.
// - Numerical analysis: the flexibility of the soil at the nodes is inverted and the plane of the raft follows from
//   vertical and moment equilibrium; an elastic layer as the half-space less what lies below it (Steinbrenner, 1934),
//   clay by mean stresses and Es or the semi-logarithmic law (Terzaghi, 1925).
//
// Sign and units: lengths in m, forces in kN, stresses and moduli in kN/m2, unit weight in kN/m3, settlements in cm and
// positive downward.
#pragma once

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// The kernel of problems 9 and 10 for LoadType 3. `z` is set to 0 in the analytical analysis, `h` to the limiting depth
// in that of clay by Cc. Reads Nue, ProblemType, PrefND, PrefTol, PrefImax of Session; leaves the node and middle-row
// arrays, the export files and ResultText. Sets Session.A0.
//
// A run-time failure goes to the shared failure routine and sets Session.CalcAborted.
void ComputeCircularRaft(Single& z, Single Q, Single A, Single& h, Single eo, Single Po, Single Cc, Single Es,
                         Integer SoilPropertyType, Single Exz_x, Single Gamma, bool AnalysisType, bool SettlementAt);

}  // namespace lithmark
