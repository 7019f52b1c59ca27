// A rigid rectangular raft whose contact stress is taken from the rigid punch.
//
// Contact stress of the punch on a half-space in each direction: q(x) = 2/(pi A) / sqrt(1 - (2x/A)^2) (Sadowsky, 1928),
// as a product for the two directions, so the force of a node is the product of two differences of arcsines.
// Settlements follow by superposition of the node forces on a half-space (Boussinesq, 1885; Schleicher, 1926) and are
// in cm.
//
// Deliberate: the load is taken as central whatever its eccentricity; the method is for central loads.
#pragma once

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/RectangularMesh.h"

namespace lithmark {

// Contact force of each node [kN]. InvalidArgument when a node's area reaches beyond the raft, which happens when a
// side is not a whole number of millimetres.
void PunchForces(const RectangularMesh& mesh, const RaftInput& input, Array<Single>& nodeForce);

// Settlement of an elastic half-space (modulus Es, Poisson's ratio nu) at the centre or at all nodes, as SettlementAt
// asks; in the first case all nodes take the value of the centre.
void ElasticPunchSettlement(const RectangularMesh& mesh, const RaftInput& input, Single nu,
                            const Array<Single>& nodeForce, Array<Single>& settlement);
// The same for a half-space whose Poisson's ratio is 0, of problem 10: sums first, modulus and unit afterwards.
void ConfinedPunchSettlement(const RectangularMesh& mesh, const RaftInput& input, const Array<Single>& nodeForce,
                             Array<Single>& settlement);
// Settlement of a half-space of clay down to the limiting depth, which goes to input.h. With SettlementAt false the
// first node sets that depth.
void ClayPunchSettlement(const RectangularMesh& mesh, RaftInput& input, Single depthStep,
                         const Array<Single>& nodeForce, Array<Single>& settlement);

}  // namespace lithmark
