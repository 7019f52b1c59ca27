// Stresses and displacements in an elastic half-space under a uniform pressure on a circle of its surface.
//
// Assumptions: half-space linear elastic, homogeneous, isotropic, without weight; load flexible, radius a, centred on
// the origin. Each element of the mesh acts as a point load (Boussinesq 1885) of its area times p, except the one right
// above the point: that acts as a disc of equal area, with the closed formulas for the axis of a disc. Symbols: zc
// depth > 0 [m]; P pressure [kN/m2]; Nue, Es [kN/m2] of the soil. Signs: compression positive; u, v along x and y, w
// downward. Accuracy: that of the mesh. Near the load, at depths less than about one ring's width, the elements show.
#pragma once

#include "base/Single.h"
#include "kernels/elastic/CircleMesh.h"
#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// The vertical stress of the mesh under the pressure p at (x, y) and depth d: the sum over all nodes [kN/m2].
Single CircleSigmaZ(const CircleMesh& mesh, Single x, Single y, Single d, Single p);

// Writes the stresses and displacements of the circle of radius Session.A0 into Session: Sigma, Tau [kN/m2], u, v, w,
// s [cm]. The mesh has Session.PrefND divisions of the diameter; see BuildCircleMesh for its failures.
void ComputeCircularLoad(const SoilStressInput& in, Single zc);

}  // namespace lithmark
