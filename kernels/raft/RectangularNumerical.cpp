#include "kernels/raft/RectangularNumerical.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/MatrixSoil.h"
#include "kernels/raft/OperatorSoil.h"
#include "kernels/raft/SublayerStress.h"
#include "kernels/raft/ThickClay.h"
#include "kernels/raft/ThinClay.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

// Points influence each other by `point`; a node's own unit force by NodeElems/NodeArea times a corner factor of unit
// pressure, over `modulus`.
NodeInfluence InfluenceOf(const RectangularMesh& mesh, Single cornerFactor, double modulus, OffsetFactor point) {
    NodeInfluence influence{std::move(point), Array<Single>(1, mesh.Nodes())};
    for (int r = 1; r <= mesh.Nodes(); ++r)
        influence.Own(r) = Quotient(Quotient(mesh.NodeElems(r), mesh.NodeArea(r)) * cornerFactor, modulus);
    return influence;
}

// Mean stress in the layer z .. z + h under unit forces.
NodeInfluence MeanStressOfNodes(const RectangularMesh& mesh, const RaftInput& input) {
    const Single z1 = input.z, z2 = z1 + input.h;
    return InfluenceOf(mesh, MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z1, z2), 1,
                       [z1, z2](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); });
}

// Solves by the operator where it may serve, and by the matrix where it may not or does not.
template <typename ByOperator, typename ByMatrix>
RaftSolver Solve(const RectangularMesh& mesh, bool large, const ByOperator& byOperator, const ByMatrix& byMatrix) {
    if (!large) {
        byMatrix();
        return RaftSolver::Inverse;
    }
    const NoticeBoard before = Notices();
    try {
        byOperator();
        return RaftSolver::Operator;
    } catch (const Failure& failure) {
        if (failure.Kind() != FailureKind::SingularMatrix) throw;
    }
    Notices() = before;
    byMatrix();
    Notices().Raise(NoticeId::SolverFallback, 907500_text, {NumberToText(mesh.Nodes())});
    return RaftSolver::InverseInstead;
}

bool IsLarge(const RectangularMesh& mesh) {
    return mesh.Nodes() > kMostNodesOfInverse;
}
// Below the surface a clay is a badly conditioned system.
bool IsLargeAtSurface(const RectangularMesh& mesh, const RaftInput& input) {
    return IsLarge(mesh) && input.z == 0;
}

// For soils of one influence.
template <typename Analysis>
RaftSolver SolveWith(const RectangularMesh& mesh, bool large, const NodeInfluence& influence,
                     const Analysis& analysis) {
    return Solve(
        mesh, large, [&] { analysis(OperatorSoil(mesh, OffsetGrid(mesh), influence)); },
        [&] { analysis(MatrixSoil(Grid(mesh), influence, false)); });
}

RaftLoad LoadOf(const RaftInput& input) {
    return EccentricLoad(input.Q, input.Exz_x, input.Exz_y);
}

RaftEquilibrium EquilibriumOn(const RaftSoil& soil, const RaftInput& input) {
    return soil.Equilibrium(LoadCaseOf(input.Exz_x, input.Exz_y));
}

// The plane under the load on a linear soil. Leaves Session.NodeForce.
RaftPlane SolveLinear(const RaftSoil& soil, const RaftInput& input) {
    const RaftEquilibrium equilibrium = EquilibriumOn(soil, input);
    const RaftPlane plane = equilibrium.Solve(LoadOf(input), {});
    equilibrium.NodeForces(plane, Session.NodeForce);
    return plane;
}

}  // namespace

RaftSolver SolveElasticLayer(const RectangularMesh& mesh, const RaftInput& input) {
    const Single nu = Session.Nue, h = input.h, Es = input.Es;
    const NodeInfluence influence =
        InfluenceOf(mesh, RectCornerLayer(mesh.ElemHalfX, mesh.ElemHalfY, h, nu), Es,
                    [=](Single dx, Single dy) -> Single { return Quotient(PointLayer(dx, dy, h, nu), Es); });
    return SolveWith(mesh, IsLarge(mesh), influence, [&](const RaftSoil& soil) {
        PlaneSettlements(SolveLinear(soil, input), mesh.u, mesh.v, Session.NodeSettlement);
    });
}

RaftSolver SolveUniformClay(const RectangularMesh& mesh, const RaftInput& input) {
    return SolveWith(mesh, IsLargeAtSurface(mesh, input), MeanStressOfNodes(mesh, input), [&](const RaftSoil& soil) {
        RaftPlane plane = SolveLinear(soil, input);
        // So far the plane is one of mean stresses.
        const double compression = Quotient(input.h, input.Es);
        plane.c0 *= compression;
        plane.cy *= compression;
        plane.cx *= compression;
        PlaneSettlements(plane, mesh.u, mesh.v, Session.NodeSettlement);
    });
}

RaftSolver SolveThinClay(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay) {
    return SolveWith(mesh, IsLargeAtSurface(mesh, input), MeanStressOfNodes(mesh, input), [&](const RaftSoil& soil) {
        const RaftEquilibrium equilibrium = EquilibriumOn(soil, input);
        const RaftLoad load = LoadOf(input);
        const Single d0 = equilibrium.Solve(load, {}).c0;
        const ThinClayTilt tilt = SearchThinClayTilt(equilibrium, soil.Moments(equilibrium), mesh.u, mesh.v, load,
                                                     clay.S0, d0, Session.PrefTol);
        Array<Single> increase(1, mesh.Nodes());
        for (int i = 1; i <= mesh.Nodes(); ++i) increase(i) = ThinClayIncrease(clay.S0, d0, tilt, mesh.u(i), mesh.v(i));
        soil.Forces(increase, Session.NodeForce);
        PlaneSettlements(ThinClayPlane(input, clay, d0, tilt), mesh.u, mesh.v, Session.NodeSettlement);
    });
}

RaftSolver SolveThickClay(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay) {
    const auto iterate = [&](const RaftSoil& soil, SublayerStress& sublayers) {
        const RaftEquilibrium equilibrium = EquilibriumOn(soil, input);
        ThickClaySystem system;
        system.n = mesh.Nodes();
        system.Settlements = [&](const auto& x, auto& y, const auto& progress) { soil.Settlements(x, y, progress); };
        system.Forces = [&](const auto& x, auto& y, const auto& progress) { soil.ExtraForces(x, y, progress); };
        system.Equilibrium = &equilibrium;
        system.Load = LoadOf(input);
        system.u = &mesh.u;
        system.v = &mesh.v;
        system.TrueSettlement = [&](Array<Single>& settlement, const auto& progress) {
            sublayers.Settle(Session.NodeForce, settlement, progress);
        };
        IterateThickClay(system);
    };
    return Solve(
        mesh, IsLargeAtSurface(mesh, input),
        [&] {
            const OffsetGrid grid(mesh);
            OperatorSublayers sublayers(mesh, grid, input, clay);
            iterate(OperatorSoil(mesh, grid, sublayers.Tangent()), sublayers);
        },
        [&] {
            const Grid grid(mesh);
            SummedSublayers sublayers(grid, input, clay);
            iterate(MatrixSoil(grid, sublayers.Tangent(), true), sublayers);
        });
}

}  // namespace lithmark
