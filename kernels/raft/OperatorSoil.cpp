#include "kernels/raft/OperatorSoil.h"

#include "kernels/raft/Conditioning.h"
#include "kernels/raft/RaftProgress.h"
#include "services/numerics/ConjugateGradients.h"

namespace lithmark {

namespace {

std::vector<double> Wide(const Array<Single>& values) {
    return {values.begin(), values.end()};
}

void Store(const std::vector<double>& values, Array<Single>& stored) {
    for (std::size_t i = 0; i < values.size(); ++i) stored(static_cast<int>(i) + 1) = values[i];
}

}  // namespace

OperatorSoil::OperatorSoil(const RectangularMesh& mesh, const OffsetGrid& grid, const NodeInfluence& influence)
    : mesh_(mesh),
      flexibility_(grid, influence.Point, Wide(influence.Own)),
      periodic_(mesh.Columns(), mesh.Rows(), FourierTransform::LengthFrom(mesh.Columns()),
                FourierTransform::LengthFrom(mesh.Rows())) {
    // Each frequency is the work of a wave of forces over the raft, which is above 0 if that of all forces is.
    std::vector<double> smoothed = flexibility_.MeanFactors();
    const auto columns = static_cast<std::size_t>(mesh.Columns()), rows = static_cast<std::size_t>(mesh.Rows());
    for (std::size_t n = 0; n < rows; ++n)
        for (std::size_t m = 0; m < columns; ++m)
            smoothed[n * columns + m] *=
                static_cast<double>((columns - m) * (rows - n)) / static_cast<double>(columns * rows);
    frequencies_ = periodic_.KernelSpectrum(smoothed, 1, 1);
    if (!(periodic_.Bounds(frequencies_).first > 0)) Fail(FailureKind::SingularMatrix);
}

double OperatorSoil::Condition() const {
    const auto [least, greatest] = periodic_.Bounds(frequencies_);
    return Quotient(greatest, least);
}

void OperatorSoil::Precondition(std::span<const std::vector<double>> x, std::span<std::vector<double>> y) const {
    GridSpectrum spectrum;
    for (std::size_t i = 0; i < x.size(); i += 2) {
        const bool pair = i + 1 < x.size();
        periodic_.Forward(x[i].data(), pair ? x[i + 1].data() : nullptr, spectrum);
        for (std::size_t k = 0; k < frequencies_.size(); ++k) {
            spectrum.Re[k] /= frequencies_[k];
            spectrum.Im[k] /= frequencies_[k];
        }
        periodic_.Backward(spectrum, y[i].data(), pair ? y[i + 1].data() : nullptr);
    }
}

std::vector<std::vector<double>> OperatorSoil::Solve(const std::vector<std::vector<double>>& settlements,
                                                     const Progress& progress) const {
    ConjugateGradients method;
    method.Matrix = [this](auto x, auto y) { flexibility_.Apply(x, y); };
    method.Preconditioner = [this](auto x, auto y) { Precondition(x, y); };
    method.Progress = progress;
    std::vector<std::vector<double>> forces;
    if (method.Solve(settlements, forces) != IterationEnd::Solved) Fail(FailureKind::SingularMatrix);
    return forces;
}

RaftEquilibrium OperatorSoil::Equilibrium(LoadCase k) const {
    std::vector<std::vector<double>> planes = {std::vector<double>(static_cast<std::size_t>(mesh_.Nodes()), 1)};
    if (TiltsAlongY(k)) planes.push_back(Wide(mesh_.v));
    if (TiltsAlongX(k)) planes.push_back(Wide(mesh_.u));
    std::vector<std::vector<double>> forces = Solve(planes, ProgressBetween(kFlexibilityDone, kEquilibriumDone));
    MeasuresOfRaft().Condition = Condition();
    UnitForces unit;
    if (TiltsAlongX(k)) {
        unit.TiltedX = std::move(forces.back());
        forces.pop_back();
    }
    if (TiltsAlongY(k)) unit.TiltedY = std::move(forces.back());
    unit.Settled = std::move(forces.front());
    return {k, unit, mesh_.u, mesh_.v};
}

UnitMoments OperatorSoil::Moments(const RaftEquilibrium& equilibrium) const {
    return {equilibrium.ColumnSumTotal(3), equilibrium.ColumnSumTotal(2)};
}

void OperatorSoil::Forces(const Array<Single>& settlement, Array<Single>& force) const {
    Store(Solve({Wide(settlement)}, [](double) { SharedServices().ReportProgress(kSettled); }).front(), force);
}

void OperatorSoil::ExtraForces(const Array<Single>& settlement, Array<Single>& force, const Progress& progress) const {
    Store(Solve({Wide(settlement)}, progress).front(), force);
}

void OperatorSoil::Settlements(const Array<Single>& force, Array<Single>& settlement, const Progress& progress) const {
    const std::vector<double> forces = Wide(force);
    std::vector<double> settlements(forces.size());
    flexibility_.Apply({&forces, 1}, {&settlements, 1});
    Store(settlements, settlement);
    progress(1);
}

}  // namespace lithmark
