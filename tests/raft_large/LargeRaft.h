// What the tests of large rafts share.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/MatrixSoil.h"
#include "raft/RaftProblem.h"
#include "report/Notices.h"

namespace lithmark::tests {

// 7.5 m by 6 m in elements of 0.125 m by 0.15 m, on 3 m of soil: 2501 nodes. A side of 7.4 m has lines that are rounded
// to millimetres.
class LargeRaft : public testing::Test {
  protected:
    LargeRaft() {
        ResetSession();
        Notices().Clear();
        Session.Nue = 0.25;
        Session.ProblemType = Problem::RaftDisplacement;
        input_ = SquareRaft();
        input_.z = 0;
        input_.h = 3;
        input_.Exz_x = 0.4;
        input_.Exz_y = 0.3;
        Mesh(7.5, 6, 60, 40);
    }
    ~LargeRaft() override { ResetSession(); }

    void Mesh(double a, double b, int nx, int ny) {
        input_.A = a;
        input_.B = b;
        mesh_ = MeshOf(input_, a / nx, b / ny);
        PrepareNodeArrays(mesh_);
    }

    // The influence in the elastic layer, modulus included.
    NodeInfluence LayerInfluence() const {
        NodeInfluence influence;
        influence.Point = [this](Single dx, Single dy) -> Single {
            return PointLayer(dx, dy, input_.h, 0.25) / input_.Es;
        };
        influence.Own.Redim(1, mesh_.Nodes());
        const Single corner = RectCornerLayer(mesh_.ElemHalfX, mesh_.ElemHalfY, input_.h, 0.25);
        for (int r = 1; r <= mesh_.Nodes(); ++r)
            influence.Own(r) = mesh_.NodeElems(r) / mesh_.NodeArea(r) * corner / input_.Es;
        return influence;
    }

    // The greatest difference of two lists of forces, to the mean of the first.
    static double Difference(const Array<Single>& a, const Array<Single>& b) {
        double greatest = 0;
        for (int i = 1; i <= a.Upper(); ++i) greatest = std::max(greatest, std::abs(a(i) - b(i)));
        return greatest / (SumOf(a) / a.Upper());
    }

    // The elastic layer by its matrix.
    void SolveByInverse() const {
        const MatrixSoil soil(Grid(mesh_), LayerInfluence(), false);
        const RaftEquilibrium equilibrium = soil.Equilibrium(LoadCase::BothEccentric);
        const RaftPlane plane = equilibrium.Solve(EccentricLoad(input_.Q, input_.Exz_x, input_.Exz_y), {});
        equilibrium.NodeForces(plane, Session.NodeForce);
        PlaneSettlements(plane, mesh_.u, mesh_.v, Session.NodeSettlement);
    }

    struct Results {
        Array<Single> Force, Settlement;
    };
    static Results Now() { return {Session.NodeForce, Session.NodeSettlement}; }

    RaftInput input_;
    RectangularMesh mesh_;
};

}  // namespace lithmark::tests
