// A rigid raft on clay that is worked in sublayers: modified Newton iteration.
//
// The tangent stiffness at the initial stresses is kept; in each pass the settlement that the true, semi-logarithmic
// law lacks against the linear one is turned into extra forces on the nodes, until the plane of the raft stands still.
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/RaftEquilibrium.h"

namespace lithmark {

struct ThickClaySystem {
    int n = 0;  // size of the system, which symmetry may have folded
    using Progress = std::function<void(double part)>;
    // What node forces do to the settlements (1..n) with the tangent flexibility, and the other way round.
    using Product = std::function<void(const Array<Single>& x, Array<Single>& y, const Progress& progress)>;
    Product Settlements, Forces;
    const RaftEquilibrium* Equilibrium = nullptr;
    RaftLoad Load;
    // Distances of all nodes of the raft from its centre.
    const Array<Single>* u = nullptr;
    const Array<Single>* v = nullptr;
    // Fills the nodes beyond n of an array over all nodes by symmetry; nothing to call when the system holds all nodes.
    std::function<void(Array<Single>&)> Spread;
    // settlement(1..n) [m] after the true law under Session.NodeForce.
    std::function<void(Array<Single>& settlement, const Progress& progress)> TrueSettlement;
};
// The products of a system that is held as matrices: the tangent flexibility and its inverse, n by n.
void UseMatrices(ThickClaySystem& system, const Matrix<Single>& flexibility, const Matrix<Single>& stiffness);

// Leaves Session.NodeForce and Session.NodeSettlement of all nodes; both must have their full size. Runs at most
// Session.PrefImax + 1 passes; when they do not bring the settlements [m] within Session.PrefTol of those of the pass
// before, the last state stands.
void IterateThickClay(const ThickClaySystem& system);

}  // namespace lithmark
