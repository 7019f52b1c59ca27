// Equilibrium of a rigid raft on a soil whose node forces follow from a stiffness matrix.
//
// The raft stays a plane: c0 is the settlement of its centre, cy and cx its tilts along y and x. The node forces
// K (c0 + u cx + v cy) must carry the load Q and its moments Q ey and Q ex about the centre. Stored values, also every
// running sum, are Singles; sums run in ascending node order.
#pragma once

#include <vector>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark {

enum class LoadCase { BothEccentric = 1, AlongX = 2, AlongY = 3, Central = 4 };

// An eccentricity counts unless it is exactly 0.
LoadCase LoadCaseOf(Single exzX, Single exzY);
inline bool TiltsAlongX(LoadCase k) noexcept {
    return k == LoadCase::BothEccentric || k == LoadCase::AlongX;
}
inline bool TiltsAlongY(LoadCase k) noexcept {
    return k == LoadCase::BothEccentric || k == LoadCase::AlongY;
}

struct RaftPlane {
    Single c0, cy, cx;
};

// A vertical force [kN] and its moments about the centre [kNm]: along y (force times y) and along x.
struct RaftLoad {
    Single Force, MomY, MomX;
};
// Q, Q ey, Q ex.
RaftLoad EccentricLoad(Single q, Single exzX, Single exzY);

// The node forces under settlements of 1, v and u; what the load case does not need is empty.
struct UnitForces {
    std::vector<double> Settled, TiltedY, TiltedX;
};

class RaftEquilibrium {
  public:
    // `stiffness` is n by n; u, v are the nodes' distances from the raft's centre [m] and `weight` tells how many nodes
    // of the raft each node of a system folded by symmetry stands for (all 1 without folding). Only the first n places
    // of the arrays are read; v is not read in a load case without tilt along y.
    RaftEquilibrium(LoadCase k, int n, const Matrix<Single>& stiffness, const Array<Single>& u, const Array<Single>& v,
                    const Array<Single>& weight);
    // The same of a symmetric stiffness that is known by the forces of unit planes alone, without folding. Sums run in
    // 64 bits; the stored values are Singles.
    RaftEquilibrium(LoadCase k, const UnitForces& forces, const Array<Single>& u, const Array<Single>& v);

    // The plane that carries `load` less `carried`, which other forces carry already. DivisionByZero when the system is
    // singular.
    RaftPlane Solve(const RaftLoad& load, const RaftLoad& carried) const;
    // force(1..n) under a plane.
    void NodeForces(const RaftPlane& plane, Array<Single>& force) const;

    LoadCase Case() const noexcept { return k_; }
    // Sums over r of weight(r) times K(r, c) [row 1], v(r) K(r, c) [row 2], u(r) K(r, c) [row 3]; rows that the load
    // case does not need stay 0.
    const Matrix<Single>& ColumnSums() const noexcept { return t_; }
    // The sums of these rows: forces and moments of a unit settlement.
    Single ColumnSumTotal(int row) const { return g_(row, 1); }

  private:
    LoadCase k_;
    int n_;
    Matrix<Single> t_;  // 3 by n
    Matrix<Single> g_;  // 3 by 3: forces and moments of unit plane parts
    Matrix<Single> w_;  // n by 3: node forces of unit plane parts
};

// settlement(i) [cm] of every node of a plane in metres.
void PlaneSettlements(const RaftPlane& plane, const Array<Single>& u, const Array<Single>& v,
                      Array<Single>& settlement);

// The arcsine as the rigid punch formulas take it: plus or minus half PI (a Single) at exactly 1 or -1,
// atan(w/sqrt(1 - w w)) elsewhere. InvalidArgument beyond.
Single PunchArcSine(Single w);

}  // namespace lithmark
