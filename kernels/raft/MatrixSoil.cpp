#include "kernels/raft/MatrixSoil.h"

#include "kernels/raft/Conditioning.h"
#include "kernels/raft/RaftProgress.h"
#include "services/numerics/NumericLib.h"

namespace lithmark {

MatrixSoil::MatrixSoil(const Grid& grid, const NodeInfluence& influence, bool keepFlexibility)
    : mesh_(grid.Mesh), ones_(1, grid.Mesh.Nodes()) {
    for (Single& one : ones_) one = 1;
    OffsetFactors factors(grid, influence.Point, false);
    Matrix<Single>& filled = keepFlexibility ? flexibility_ : stiffness_;
    FillFlexibility(grid, factors, influence.Own, filled);
    InvertFlexibility(mesh_.Nodes(), filled, stiffness_, ProgressBetween(kFlexibilityDone, kInverseDone));
}

RaftEquilibrium MatrixSoil::Equilibrium(LoadCase k) const {
    return {k, mesh_.Nodes(), stiffness_, mesh_.u, mesh_.v, ones_};
}

UnitMoments MatrixSoil::Moments(const RaftEquilibrium& equilibrium) const {
    return SumUnitMoments(equilibrium.Case(), mesh_.Nodes(), stiffness_, mesh_.u, mesh_.v, ones_);
}

void MatrixSoil::Forces(const Array<Single>& settlement, Array<Single>& force) const {
    for (int r = 1; r <= mesh_.Nodes(); ++r) {
        Single sum;
        const auto row = stiffness_.Row(r);
        for (int c = 1; c <= mesh_.Nodes(); ++c) sum += settlement(c) * row[static_cast<std::size_t>(c - 1)];
        force(r) = sum;
        if (r % 64 == 0) SharedServices().ReportProgress(kSettled);
    }
}

void MatrixSoil::ExtraForces(const Array<Single>& settlement, Array<Single>& force, const Progress& progress) const {
    NumericLib::MatVec(mesh_.Nodes(), stiffness_, settlement, force, progress);
}

void MatrixSoil::Settlements(const Array<Single>& force, Array<Single>& settlement, const Progress& progress) const {
    NumericLib::MatVec(mesh_.Nodes(), flexibility_, force, settlement, progress);
}

}  // namespace lithmark
