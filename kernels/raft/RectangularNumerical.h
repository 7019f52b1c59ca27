// The numerical analysis of a rigid rectangular raft: flexibility of the soil, equilibrium, plane of settlements.
#pragma once

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/RectangularInfluence.h"

namespace lithmark {

// Problem 9: elastic layer of thickness h on a rigid base (Steinbrenner, 1934). Leaves Session.NodeForce and
// Session.NodeSettlement, as the others below.
void SolveElasticLayer(const Grid& grid, const RaftInput& input);
// Problem 10 by Es: compression of the layer between z and z + h by its mean stress.
void SolveUniformClay(const Grid& grid, const RaftInput& input);
// Problem 10 by Cc.
void SolveThinClay(const Grid& grid, const RaftInput& input, const ClayLayer& clay);
void SolveThickClay(const Grid& grid, const RaftInput& input, const ClayLayer& clay);

}  // namespace lithmark
