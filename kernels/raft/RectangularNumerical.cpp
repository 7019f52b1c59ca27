#include "kernels/raft/RectangularNumerical.h"

#include <algorithm>
#include <deque>

#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/ThickClay.h"
#include "kernels/raft/ThinClay.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// NodeElems/NodeArea times a corner factor of unit pressure: the influence of a node's own unit force.
double OwnFactor(const RectangularMesh& mesh, int node, Single cornerFactor) {
    return Quotient(mesh.NodeElems(node), mesh.NodeArea(node)) * cornerFactor;
}

Array<Single> Ones(int n) {
    Array<Single> weight(1, n);
    for (Single& w : weight) w = 1;
    return weight;
}

void Invert(int n, const Matrix<Single>& matrix, Matrix<Single>& inverse) {
    SharedServices().ReportProgress(0.1);
    InvertFlexibility(n, matrix, inverse);
    SharedServices().ReportProgress(0.8);
}

RaftEquilibrium PrepareEquilibrium(const RectangularMesh& mesh, const RaftInput& input,
                                   const Matrix<Single>& stiffness) {
    RaftEquilibrium equilibrium(LoadCaseOf(input.Exz_x, input.Exz_y), mesh.Nodes(), stiffness, mesh.u, mesh.v,
                                Ones(mesh.Nodes()));
    SharedServices().ReportProgress(0.9);
    return equilibrium;
}

RaftLoad LoadOf(const RaftInput& input) {
    return EccentricLoad(input.Q, input.Exz_x, input.Exz_y);
}

// Stiffness matrix of the mean stress in the layer z .. z + h under unit forces.
Matrix<Single> MeanStressStiffness(const Grid& grid, const RaftInput& input) {
    const RectangularMesh& mesh = grid.Mesh;
    const Single z1 = input.z, z2 = z1 + input.h;
    const Single corner = MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z1, z2);
    Array<Single> diagonal(1, mesh.Nodes());
    for (int r = 1; r <= mesh.Nodes(); ++r) diagonal(r) = OwnFactor(mesh, r, corner);
    OffsetFactors factors(
        grid, [&](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); }, false);
    Matrix<Single> matrix;
    FillFlexibility(grid, factors, diagonal, matrix);
    Invert(mesh.Nodes(), matrix, matrix);
    return matrix;
}

// The sublayers of a thick clay, with the factors of the mean stress in each.
class SublayerStress {
  public:
    SublayerStress(const Grid& grid, const RaftInput& input, const ClayLayer& clay) : grid_(grid), clay_(clay) {
        const RectangularMesh& mesh = grid.Mesh;
        // Factors are kept while they take less than a twentieth of what the two matrices take, or little anyway.
        const double perLayer = static_cast<double>(grid.DistancesX.Count()) * grid.DistancesY.Count();
        const double matrices = 2.0 * mesh.Nodes() * mesh.Nodes();
        const bool keep = perLayer * clay.M <= std::max(0.05 * matrices, 2.5e5);
        for (int k = 1; k <= clay.M; ++k) {
            const Single z1 = SublayerTop(input, clay, k), z2 = z1 + clay.DepthStep;
            corner_.push_back(MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z1, z2));
            point_.emplace_back(
                grid, [z1, z2](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); }, keep);
        }
    }

    // The tangent flexibility at the initial stresses.
    void FillTangent(Matrix<Single>& flexibility) const {
        const RectangularMesh& mesh = grid_.Mesh;
        Array<Single> diagonal(1, mesh.Nodes());
        for (int r = 1; r <= mesh.Nodes(); ++r)
            for (int k = 1; k <= clay_.M; ++k) {
                const Single g = OwnFactor(mesh, r, corner_[static_cast<std::size_t>(k - 1)]);
                diagonal(r) += Compliance(k) * g;
            }
        OffsetFactors factors(
            grid_, [this](Single dx, Single dy) { return TangentFactor(dx, dy); }, false);
        FillFlexibility(grid_, factors, diagonal, flexibility);
    }

    // The settlement [m] of each node after the true law; a negative stress increase counts as none.
    void Settle(const Array<Single>& nodeForce, Array<Single>& settlement) {
        const RectangularMesh& mesh = grid_.Mesh;
        const std::vector<double> force(nodeForce.begin(), nodeForce.end());
        std::vector<double> own(force.size());
        Array<Single> increase;
        for (Single& s : settlement) s = 0;
        for (int k = 1; k <= clay_.M; ++k) {
            const auto layer = static_cast<std::size_t>(k - 1);
            for (std::size_t i = 0; i < own.size(); ++i) {
                const Single g = OwnFactor(mesh, static_cast<int>(i) + 1, corner_[layer]);
                own[i] = g * force[i];
            }
            SharedServices().ReportProgress(0.9 + 0.1 * (passes_ + static_cast<double>(layer) / clay_.M) /
                                                      (Session.PrefImax + 1.0));
            SuperposeAtAllNodes(grid_, point_[layer], own, force, increase);
            for (int r = 1; r <= mesh.Nodes(); ++r) {
                const double d = std::max<double>(increase(r), 0);
                settlement(r) += clay_.LayerFactor * LogStressRatio(clay_.SubStress(k), d);
            }
        }
        ++passes_;
    }

  private:
    double Compliance(int k) const { return Quotient(clay_.LayerFactor, clay_.SubStress(k)); }
    Single TangentFactor(Single dx, Single dy) const {
        Single sum;
        for (int k = 1; k <= clay_.M; ++k) sum += Compliance(k) * point_[static_cast<std::size_t>(k - 1)].At(dx, dy);
        return sum;
    }

    const Grid& grid_;
    const ClayLayer& clay_;
    std::vector<Single> corner_;
    std::deque<OffsetFactors> point_;
    int passes_ = 0;  // calls of Settle so far
};

}  // namespace

void SolveElasticLayer(const Grid& grid, const RaftInput& input) {
    const RectangularMesh& mesh = grid.Mesh;
    const Single nu = Session.Nue;
    const Single corner = RectCornerLayer(mesh.ElemHalfX, mesh.ElemHalfY, input.h, nu);
    Array<Single> diagonal(1, mesh.Nodes());
    for (int r = 1; r <= mesh.Nodes(); ++r) diagonal(r) = Quotient(OwnFactor(mesh, r, corner), input.Es);
    OffsetFactors factors(
        grid, [&](Single dx, Single dy) -> Single { return Quotient(PointLayer(dx, dy, input.h, nu), input.Es); },
        false);
    Matrix<Single> matrix;
    FillFlexibility(grid, factors, diagonal, matrix);
    Invert(mesh.Nodes(), matrix, matrix);

    const RaftEquilibrium equilibrium = PrepareEquilibrium(mesh, input, matrix);
    const RaftPlane plane = equilibrium.Solve(LoadOf(input), {});
    equilibrium.NodeForces(plane, Session.NodeForce);
    PlaneSettlements(plane, mesh.u, mesh.v, Session.NodeSettlement);
}

void SolveUniformClay(const Grid& grid, const RaftInput& input) {
    const RectangularMesh& mesh = grid.Mesh;
    const Matrix<Single> stiffness = MeanStressStiffness(grid, input);
    const RaftEquilibrium equilibrium = PrepareEquilibrium(mesh, input, stiffness);
    RaftPlane plane = equilibrium.Solve(LoadOf(input), {});
    equilibrium.NodeForces(plane, Session.NodeForce);
    // So far the plane is one of mean stresses.
    const double compression = Quotient(input.h, input.Es);
    plane.c0 *= compression;
    plane.cy *= compression;
    plane.cx *= compression;
    PlaneSettlements(plane, mesh.u, mesh.v, Session.NodeSettlement);
}

void SolveThinClay(const Grid& grid, const RaftInput& input, const ClayLayer& clay) {
    const RectangularMesh& mesh = grid.Mesh;
    const int n = mesh.Nodes();
    const Matrix<Single> stiffness = MeanStressStiffness(grid, input);
    const RaftEquilibrium equilibrium = PrepareEquilibrium(mesh, input, stiffness);
    const RaftLoad load = LoadOf(input);
    const Single d0 = equilibrium.Solve(load, {}).c0;
    const ThinClayTilt tilt =
        SearchThinClayTilt(equilibrium, n, stiffness, mesh.u, mesh.v, Ones(n), load, clay.S0, d0, Session.PrefTol);
    Array<Single> increase(1, n);
    for (int i = 1; i <= n; ++i) increase(i) = ThinClayIncrease(clay.S0, d0, tilt, mesh.u(i), mesh.v(i));
    for (int r = 1; r <= n; ++r) {
        Single force;
        const auto row = stiffness.Row(r);
        for (int c = 1; c <= n; ++c) force += increase(c) * row[static_cast<std::size_t>(c - 1)];
        Session.NodeForce(r) = force;
    }
    PlaneSettlements(ThinClayPlane(input, clay, d0, tilt), mesh.u, mesh.v, Session.NodeSettlement);
}

void SolveThickClay(const Grid& grid, const RaftInput& input, const ClayLayer& clay) {
    const RectangularMesh& mesh = grid.Mesh;
    SublayerStress sublayers(grid, input, clay);
    Matrix<Single> flexibility, stiffness;
    sublayers.FillTangent(flexibility);
    Invert(mesh.Nodes(), flexibility, stiffness);
    const RaftEquilibrium equilibrium = PrepareEquilibrium(mesh, input, stiffness);

    ThickClaySystem system;
    system.n = mesh.Nodes();
    system.Flexibility = &flexibility;
    system.Stiffness = &stiffness;
    system.Equilibrium = &equilibrium;
    system.Load = LoadOf(input);
    system.u = &mesh.u;
    system.v = &mesh.v;
    system.TrueSettlement = [&](Array<Single>& settlement) { sublayers.Settle(Session.NodeForce, settlement); };
    IterateThickClay(system);
}

}  // namespace lithmark
