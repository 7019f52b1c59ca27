// The tilt of a rigid raft on a thin clay layer.
//
// Under the semi-logarithmic law a plane of settlements means that the stress ratio varies exponentially:
// (S0 + D)/S0 = ((S0 + D0)/S0) exp(u a + v b). The exponents a and b are searched until the node forces K D balance the
// moments of the load.
//
// Deliberate: the mean stress at the centre, d0, is that of the linear system, so that a search in one variable is
// enough; under an eccentric load the node forces carry more than Q: 3 % for an eccentricity of a tenth of the side,
// 10 % for a fifth. With two eccentricities each exponent is found without the other, and the moments are off by some 1
// or 2 %. The search only goes upward, so the eccentricities must not be negative.
#pragma once

#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/RaftEquilibrium.h"

namespace lithmark {

struct ThinClayTilt {
    Single a, b;  // along x and y [1/m]
};

// The moments along x and y of the node forces under a unit settlement [kN], taken over all nodes of the raft.
struct UnitMoments {
    Single AlongX, AlongY;
};
// Sums over c and, inside it, r of distance(r) K(r, c) weight(r): one running Single in this order.
UnitMoments SumUnitMoments(LoadCase k, int n, const Matrix<Single>& stiffness, const Array<Single>& u,
                           const Array<Single>& v, const Array<Single>& weight);

// Searches a, then b, as the load case asks. d0: mean stress increase at the raft's centre. Each search steps up by
// 0.001 and, when the imbalance changes its sign, goes back and halves the step; it ends within `tolerance`, or when
// the count of steps, which runs on from a to b, is 1000. Overflow when the count of the second search runs out of the
// Integer range.
ThinClayTilt SearchThinClayTilt(const RaftEquilibrium& equilibrium, const UnitMoments& moments, const Array<Single>& u,
                                const Array<Single>& v, const RaftLoad& load, Single s0, Single d0, double tolerance);

// The settlement plane of the thin layer: c0 = C ln((S0 + d0)/S0) h/ln 10, cx and cy from the exponents.
RaftPlane ThinClayPlane(const RaftInput& input, const ClayLayer& clay, Single d0, const ThinClayTilt& tilt);

// Mean stress increase at a node.
Single ThinClayIncrease(Single s0, Single d0, const ThinClayTilt& tilt, Single u, Single v);

}  // namespace lithmark
