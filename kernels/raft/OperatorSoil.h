// The soil under a large rectangular raft: the flexibility as an operator, node forces by conjugate gradients.
//
// A run needs the forces under three planes and, in clay, under some more settlements; each is solved by itself until
// what is left of the settlements is a 10^12th of them in the mean square. As preconditioner serves the periodic grid
// whose frequencies are those of the flexibility, smoothed over the raft's size (Fejér's mean; after T. Chan, 1988).
// Time and memory grow a little faster than the number of nodes. Digits do not depend on the machine.
//
// The method asks for a soil on which no set of forces does negative work. Elements more than about four times as long
// as wide violate this, since a force acts on other nodes as a point load, and so may a layer that begins below the
// surface under a fine mesh. The operations then fail with SingularMatrix, as they do when the goal is not reached:
// such a system is the inverse's.
#pragma once

#include <vector>

#include "kernels/raft/FlexibilityOperator.h"
#include "kernels/raft/RaftSoil.h"

namespace lithmark {

class OperatorSoil : public RaftSoil {
  public:
    OperatorSoil(const RectangularMesh& mesh, const OffsetGrid& grid, const NodeInfluence& influence);

    RaftEquilibrium Equilibrium(LoadCase k) const override;
    UnitMoments Moments(const RaftEquilibrium& equilibrium) const override;
    void Forces(const Array<Single>& settlement, Array<Single>& force) const override;
    void ExtraForces(const Array<Single>& settlement, Array<Single>& force, const Progress& progress) const override;
    void Settlements(const Array<Single>& force, Array<Single>& settlement, const Progress& progress) const override;

    // The forces under each of the settlements.
    std::vector<std::vector<double>> Solve(const std::vector<std::vector<double>>& settlements,
                                           const Progress& progress) const;

    // About the condition number of the flexibility: the greatest to the least frequency of the preconditioner.
    double Condition() const;

  private:
    void Precondition(std::span<const std::vector<double>> x, std::span<std::vector<double>> y) const;

    const RectangularMesh& mesh_;
    FlexibilityOperator flexibility_;
    GridFourier periodic_;
    std::vector<double> frequencies_;  // of the preconditioner's matrix
};

}  // namespace lithmark
