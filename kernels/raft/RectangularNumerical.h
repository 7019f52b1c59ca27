// The numerical analysis of a rigid rectangular raft: flexibility of the soil, equilibrium, plane of settlements.
//
// Up to 2500 nodes, and where the clay begins below the surface, the flexibility matrix is inverted. Larger systems are
// solved by an operator (OperatorSoil.h), which finds the same forces in a small part of the time and without a matrix:
// they differ by the rounding of the inverse, 1e-5 to 1e-4 of the mean force (docs/performance.md). When the operator
// cannot serve, the inverse does.
#pragma once

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/RectangularMesh.h"

namespace lithmark {

// What solved a system.
enum class RaftSolver {
    Inverse,
    Operator,
    InverseInstead,  // a large raft on which the operator could not serve; a notice says so
};

// The largest raft whose matrix is always inverted.
inline constexpr int kMostNodesOfInverse = 2500;

// Problem 9: elastic layer of thickness h on a rigid base (Steinbrenner, 1934). Leaves Session.NodeForce and
// Session.NodeSettlement, as the others below.
RaftSolver SolveElasticLayer(const RectangularMesh& mesh, const RaftInput& input);
// Problem 10 by Es: compression of the layer between z and z + h by its mean stress.
RaftSolver SolveUniformClay(const RectangularMesh& mesh, const RaftInput& input);
// Problem 10 by Cc.
RaftSolver SolveThinClay(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay);
RaftSolver SolveThickClay(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay);

}  // namespace lithmark
