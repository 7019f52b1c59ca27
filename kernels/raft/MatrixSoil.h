// The soil under a rectangular raft as a flexibility matrix and its inverse.
#pragma once

#include "kernels/raft/RaftSoil.h"
#include "kernels/raft/RectangularInfluence.h"

namespace lithmark {

class MatrixSoil : public RaftSoil {
  public:
    // Fills and inverts the matrix. The inverse takes the place of the flexibility unless `keepFlexibility`, which
    // Settlements needs. SingularMatrix as NumericLib::Invert.
    MatrixSoil(const Grid& grid, const NodeInfluence& influence, bool keepFlexibility);

    RaftEquilibrium Equilibrium(LoadCase k) const override;
    UnitMoments Moments(const RaftEquilibrium& equilibrium) const override;
    void Forces(const Array<Single>& settlement, Array<Single>& force) const override;
    void ExtraForces(const Array<Single>& settlement, Array<Single>& force, const Progress& progress) const override;
    void Settlements(const Array<Single>& force, Array<Single>& settlement, const Progress& progress) const override;

  private:
    const RectangularMesh& mesh_;
    Array<Single> ones_;
    Matrix<Single> flexibility_, stiffness_;
};

}  // namespace lithmark
