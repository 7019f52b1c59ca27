// Analytical analysis of a rigid circular raft: contact pressures of a rigid punch on a half-space.
//
// - Central load: p(r) = Q/(2 pi R sqrt(R^2 - r^2)), settlement Q (1 - nu^2)/(2 R E) (Boussinesq, 1885).
// - A load at the eccentricity e along x adds the factor 1 + 3 e x/R^2.
// - Lengths in m, forces in kN, moduli in kN/m2, settlements in cm.
#pragma once

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/RaftRun.h"

namespace lithmark {

struct CircularPunchForces {
    Array<Single> NodeForce;      // per node [kN]: the punch's pressure integrated over the node's sector
    Array<Single> FirstRayForce;  // per node of the first ray, NRing of them: the part of a central load alone
};

// DivisionByZero for a radius of 0.
CircularPunchForces PunchContactForces(const PolarMesh& mesh, Single Q, Single exzX);

// Settlements [cm] of all nodes on an elastic half-space: problem 9 with its Poisson's ratio, problem 10 by Es with
// nu = 0. "At the centre and the edge" is the closed form s0; a tilted raft then takes the straight line through s0 at
// the centre and s0 (1 + 3 e/R) at the edge. "At all nodes" superposes the node forces and shows the small differences
// of the point-load sum.
//
// Deliberate: the closed form tilts twice as much as theory, which has s0 (1 + 3 e/(2 R)) at the edge; on the safe
// side.
Array<Single> PunchSettlements(const PolarMesh& mesh, const RaftInput& input, const Array<Single>& nodeForce,
                               Single nu);

// Settlements [cm] of all nodes on clay by the semi-logarithmic law, worked down from the surface in steps of R. The
// first node worked searches the limiting depth, which becomes input.h [m]; the others are worked down to it.
//
// "At the centre and the edge" searches at the centre, where the first ray's forces stand for their whole rings. A
// tilted raft takes the line through that settlement at x = 0 and the settlement of the outermost node of the first
// ray at x = R. Deliberate: the node stands a little inside, but it speaks for the edge.
Array<Single> PunchClaySettlements(const PolarMesh& mesh, RaftInput& input, const CircularPunchForces& forces);

}  // namespace lithmark
