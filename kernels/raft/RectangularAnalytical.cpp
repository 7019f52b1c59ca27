#include "kernels/raft/RectangularAnalytical.h"

#include <cmath>

#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/RaftProgress.h"
#include "kernels/raft/RectangularInfluence.h"

namespace lithmark {

namespace {

// A node's own stretch along one side.
struct Stretch {
    Single from, to;
};

// The tributary stretches of the nodes, told apart by exact comparison of the stored coordinates with 0 and the raft's
// sides. A node whose coordinate, rounded to three decimals, misses the side counts as an inner one. The order of the
// tests is part of the method.
void TributaryArea(Single x, Single y, Single a, Single b, Single h, Single g, Stretch& alongX, Stretch& alongY) {
    const Stretch startX{x, x + h}, endX{x - h, x}, innerX{x - h, x + h};
    const Stretch startY{y, y + g}, endY{y - g, y}, innerY{y - g, y + g};
    const bool insideX = x > 0 && x<a, insideY = y> 0 && y < b;
    const auto set = [&](const Stretch& sx, const Stretch& sy) {
        alongX = sx;
        alongY = sy;
    };
    if (x == 0 && y == 0)
        set(startX, startY);
    else if (x == a && y == 0)
        set(endX, startY);
    else if (x == a && y == b)
        set(endX, endY);
    else if (x == 0 && y == b)
        set(startX, endY);
    else if (insideX && y == 0)
        set(innerX, startY);
    else if (insideX && y == b)
        set(innerX, endY);
    else if (x == 0 && insideY)
        set(startX, innerY);
    else if (x == a && insideY)
        set(endX, innerY);
    else
        set(innerX, innerY);
}

// asin p - asin q for the ends of a stretch, measured from the middle of the side.
double ArcSineDifference(const Stretch& stretch, Single side) {
    const Single to = stretch.to - side / 2, from = stretch.from - side / 2;
    const Single p = Quotient(2 * to, side), q = Quotient(2 * from, side);
    return PunchArcSine(p) - PunchArcSine(q);
}

// Works out `at` for the centre and gives its value to all nodes, or for each node.
template <typename At>
void SettleNodes(const RectangularMesh& mesh, bool centreOnly, Array<Single>& settlement, const At& at) {
    if (centreOnly) {
        const Single value = at(mesh.CentreNode());
        for (Single& s : settlement) s = value;
        return;
    }
    const auto progress = ProgressBetween(0, kSettled);
    for (int t = 1; t <= mesh.Nodes(); ++t) {
        progress(static_cast<double>(t) / mesh.Nodes());
        settlement(t) = at(t);
    }
}

}  // namespace

void PunchForces(const RectangularMesh& mesh, const RaftInput& input, Array<Single>& nodeForce) {
    for (int i = 1; i <= mesh.Nodes(); ++i) {
        Stretch alongX, alongY;
        TributaryArea(mesh.NodeX(i), mesh.NodeY(i), input.A, input.B, mesh.ElemHalfX, mesh.ElemHalfY, alongX, alongY);
        nodeForce(i) = input.Q / (PI * PI) * ArcSineDifference(alongX, input.A);
        nodeForce(i) = ArcSineDifference(alongY, input.B) * nodeForce(i);
    }
}

void ElasticPunchSettlement(const RectangularMesh& mesh, const RaftInput& input, Single nu,
                            const Array<Single>& nodeForce, Array<Single>& settlement) {
    const NodeLoads loads = LoadsByForce(mesh, nodeForce);
    const auto factor = [&](Single r) -> Single { return Quotient((1 - Square(nu)) * r, input.Es); };
    const Single own = factor(RectCornerHalfSpace(mesh.ElemHalfX, mesh.ElemHalfY, 0));
    const auto point = [&](Single dx, Single dy) { return factor(PointHalfSpace(dx, dy, 0)); };
    SettleNodes(mesh, input.SettlementAt, settlement,
                [&](int t) { return SuperposeAt(mesh, t, loads, own, point, 100); });
}

void ConfinedPunchSettlement(const RectangularMesh& mesh, const RaftInput& input, const Array<Single>& nodeForce,
                             Array<Single>& settlement) {
    const NodeLoads loads = LoadsByForce(mesh, nodeForce);
    const Single own = RectCornerHalfSpace(mesh.ElemHalfX, mesh.ElemHalfY, 0);
    const auto point = [](Single dx, Single dy) { return PointHalfSpace(dx, dy, 0); };
    SettleNodes(mesh, input.SettlementAt, settlement,
                [&](int t) -> Single { return Quotient(SuperposeAt(mesh, t, loads, own, point) * 100, input.Es); });
}

void ClayPunchSettlement(const RectangularMesh& mesh, RaftInput& input, Single depthStep,
                         const Array<Single>& nodeForce, Array<Single>& settlement) {
    const NodeLoads loads = LoadsByForce(mesh, nodeForce);
    const ClayColumn fresh(depthStep, input.Gamma, LayerFactorOf(input, depthStep));
    const auto cornerFactor = [&](Single z1, Single z2) {
        return MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z1, z2);
    };
    const auto meanStressAt = [&](int t, Single z1, Single z2) {
        return SuperposeAt(mesh, t, loads, cornerFactor(z1, z2),
                           [&](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); });
    };

    const int first = input.SettlementAt ? mesh.CentreNode() : 1;
    ClayColumn column = fresh;
    input.h =
        SearchLimitingDepth(column, Session.PrefTol, [&](Single z1, Single z2) { return meanStressAt(first, z1, z2); });
    for (Single& s : settlement) s = column.Settlement();
    if (input.SettlementAt) return;

    // All other columns go down in the same steps to the same depth, so they are worked side by side.
    const Grid grid(mesh);
    std::vector<ClayColumn> columns(static_cast<std::size_t>(mesh.Nodes()), fresh);
    std::vector<double> own(loads.Own.size());
    Array<Single> meanStress;
    while (columns.front().Top() != input.h) {
        const Single z1 = columns.front().Top(), z2 = columns.front().Bottom();
        const Single corner = cornerFactor(z1, z2);
        for (std::size_t i = 0; i < own.size(); ++i) own[i] = loads.Own[i] * corner;
        OffsetFactors factors(
            grid, [&](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); }, true);
        const auto share = [&](double depth) { return 0.5 + (kSettled - 0.5) * Quotient(depth, input.h); };
        SuperposeAtAllNodes(grid, factors, own, loads.Force, meanStress, ProgressBetween(share(z1), share(z2)));
        for (int t = 1; t <= mesh.Nodes(); ++t) columns[static_cast<std::size_t>(t - 1)].Add(meanStress(t));
    }
    for (int t = 1; t <= mesh.Nodes(); ++t) settlement(t) = columns[static_cast<std::size_t>(t - 1)].Settlement();
}

}  // namespace lithmark
