// Degree of consolidation of one or two clay layers: problem 5.
#pragma once

#include <string>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// Marches the excess pore water pressure of one or two clay layers from its initial distribution to the time T and
// leaves the degree of consolidation Uc (per cent) and the isochrones IsoU0, IsoUf, IsoZ (0 .. IsoLast) in Session,
// with the report in Session.ResultText.
//
// - One-dimensional consolidation, du/dt = Cv d2u/dz2 in each layer (Terzaghi 1923); load, permeability k and Cv are
//   constant in time; layers saturated.
// - The top of layer 1 is drained; the bottom of the last layer is drained (DrainageCondition 1) or impermeable (2). At
//   the interface of two layers the flow is continuous, k1 du/dz = k2 du/dz.
// - The initial pressure is U everywhere (Pressure true), or the vertical stress under the surface load at the plan
//   position (x, y): point load (Boussinesq 1885), rectangle, or circle of radius A, by LoadType.
// - Explicit differences, nodes about 1 m apart and at least 5 in a layer. The step is such that Cv dt/dz^2 = 1/6 with
//   the interval of layer 1 and the greater Cv; where the interval of layer 2 is much smaller, the scheme is unstable.
//
// x, y, z, A, B, hLayer in m (z: depth of the top of layer 1), Q in kN, P and U in kN/m2, CvLayer in m2/s, T in
// TimeUnit, which is the word of the current language.
//
// Deliberate: Session.PrefDz is overwritten with the interval of layer 1, which the run worked with. The circular load
// numbers its nodes one too high in the pass that sets initial pressures and rows, so that node 0 is not drained and
// the last node is idle; docs/time-theory.md tells what it makes.
//
// Session.CalcAborted is set when the run stops: after a message when T takes more than 32000 steps, after the shared
// failure routine for any run-time failure, such as an unknown time unit, Cv 0 in all layers, a rectangular load with
// z = 0, no initial pressure at all, or an unstable scheme. A failure while nodes are worked leaves the hourglass.
void ComputeConsolidationRate(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Integer LoadType,
                              Single U, Single T, Integer NumLayers, const Array<Single>& hLayer,
                              const Array<Single>& CvLayer, const Array<Single>& KLayer, Integer DrainageCondition,
                              bool Pressure, const std::string& TimeUnit);

}  // namespace lithmark
