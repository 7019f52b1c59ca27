#include "kernels/raft/CircularPunch.h"

#include <cmath>

#include "core/Session.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/PolarStressSums.h"
#include "kernels/raft/PolarSymmetry.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/RaftProgress.h"
#include "services/numerics/NumericLib.h"

namespace lithmark {

namespace {

// The nodes that are worked out; symmetry gives the others.
int LastTarget(const PolarMesh& mesh, Single exzX) {
    return exzX == 0 ? mesh.NQuarter : mesh.NHalf;
}

Array<Single> AllNodes(const PolarMesh& mesh, Single value) {
    Array<Single> values(1, mesh.NTotal);
    for (Single& v : values) v = value;
    return values;
}

// The straight line through s0 at the centre and s1 at x = R.
Array<Single> TiltedPlane(const PolarMesh& mesh, Single s0, Single s1) {
    Single intercept, slope;
    NumericLib::FitLine(2, Array<Single>::Of({0, mesh.R}), Array<Single>::Of({s0, s1}), intercept, slope);
    Array<Single> settlement(1, mesh.NTotal);
    for (int i = 1; i <= mesh.NTotal; ++i) settlement(i) = slope * mesh.NodeX(i) + intercept;
    return settlement;
}

}  // namespace

CircularPunchForces PunchContactForces(const PolarMesh& mesh, Single Q, Single exzX) {
    CircularPunchForces forces;
    forces.NodeForce.Redim(1, mesh.NTotal);
    forces.FirstRayForce.Redim(1, mesh.NRing);
    const Single R = mesh.R;
    const double R2 = Square(R);
    for (int i = 1; i <= mesh.NTotal; ++i) {
        const Single ra = mesh.NodeInner(i), rb = mesh.NodeOuter(i);
        const Single a1 = PunchArcSine(Quotient(ra, R)), a2 = PunchArcSine(Quotient(rb, R));
        const Single t1 = Sqrt(R2 - Square(ra)), t2 = Sqrt(R2 - Square(rb));
        const double dTheta = mesh.NodeTheta2(i) - mesh.NodeTheta1(i);
        const double dSine = std::sin(mesh.NodeTheta2(i)) - std::sin(mesh.NodeTheta1(i));
        const double scale = Q / 2 / PI / R;
        const double tilted = (R2 * (a2 - a1) + ra * t1 - rb * t2) * ((3 * exzX / 2) / R2 * dSine);
        forces.NodeForce(i) = (tilted + dTheta * (t1 - t2)) * scale;
        if (i <= mesh.NRing) forces.FirstRayForce(i) = scale * dTheta * (t1 - t2);
    }
    return forces;
}

Array<Single> PunchSettlements(const PolarMesh& mesh, const RaftInput& input, const Array<Single>& nodeForce,
                               Single nu) {
    if (input.SettlementAt) {
        const Single s0 = Quotient((1 - Square(nu)) * input.Q, 2 * mesh.R * input.Es) * 100;
        if (input.Exz_x == 0) return AllNodes(mesh, s0);
        return TiltedPlane(mesh, s0, (Quotient(3 * input.Exz_x, mesh.R) + 1) * s0);
    }
    const HalfSpaceInfluence influence(mesh, nu, input.Es);
    Array<Single> settlement(1, mesh.NTotal);
    const int last = LastTarget(mesh, input.Exz_x);
    const auto progress = ProgressBetween(0, kSettled);
    for (int t = 1; t <= last; ++t) {
        settlement(t) = SumOfForces(influence, t, nodeForce, 100);
        progress(static_cast<double>(t) / last);
    }
    CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, input.Exz_x, settlement);
    return settlement;
}

Array<Single> PunchClaySettlements(const PolarMesh& mesh, RaftInput& input, const CircularPunchForces& forces) {
    const Single step = mesh.R;
    const Single layerFactor = LayerFactorOf(input, step);
    const auto freshColumn = [&] { return ClayColumn(step, input.Gamma, layerFactor); };
    const auto at = [&](const MeanStressInfluence& influence, int t) {
        return SumOfForces(influence, t, forces.NodeForce);
    };

    if (input.SettlementAt) {
        ClayColumn centre = freshColumn();
        input.h = SearchLimitingDepth(centre, Session.PrefTol, [&](Single z1, Single z2) {
            const MeanStressInfluence influence(mesh, z1, z2);
            const auto& force = forces.FirstRayForce;
            Single d = influence.Own(1, Quotient(force(1), mesh.NodeArea(1)));
            for (int i = 2; i <= mesh.NRing; ++i) d += influence.Point(1, i) * force(i) * mesh.ND * 2;
            return d;
        });
        if (input.Exz_x == 0) return AllNodes(mesh, centre.Settlement());
        ClayColumn edge = freshColumn();
        SettleToDepth(edge, input.h,
                      [&](Single z1, Single z2) { return at(MeanStressInfluence(mesh, z1, z2), mesh.NRing); });
        return TiltedPlane(mesh, centre.Settlement(), edge.Settlement());
    }

    // The other nodes go down in the steps of the first one, so they are worked side by side.
    std::vector<StressInterval> layers;
    ClayColumn first = freshColumn();
    input.h = SearchLimitingDepth(first, Session.PrefTol, [&](Single z1, Single z2) {
        layers.push_back({z1, z2});
        return at(MeanStressInfluence(mesh, z1, z2), 1);
    });
    std::vector<MeanStressInfluence> influence;
    influence.reserve(layers.size());
    for (const StressInterval& layer : layers) influence.emplace_back(mesh, layer.Top, layer.Bottom);
    const int last = LastTarget(mesh, input.Exz_x);
    PolarStressSums stress(mesh, layers, last);
    PolarStressSums::Terms terms;
    terms.Own = [&](int k, int t) {
        return influence[static_cast<std::size_t>(k)].Own(RingOf(mesh, t),
                                                          Quotient(forces.NodeForce(t), mesh.NodeArea(t)));
    };
    terms.Plain = [&](int k, int t) { return at(influence[static_cast<std::size_t>(k)], t); };
    stress.Sum(forces.NodeForce, terms, stress.UsefulThreads(), ProgressBetween(0.5, kSettled));
    Array<Single> settlement(1, mesh.NTotal);
    for (int t = 1; t <= last; ++t) {
        ClayColumn column = freshColumn();
        for (std::size_t k = 0; k < layers.size(); ++k) column.Add(stress.At(static_cast<int>(k), t));
        settlement(t) = column.Settlement();
    }
    CopyBySymmetry(mesh.NHalf, mesh.NQuarter, mesh.NTotal, mesh.NRing, input.Exz_x, settlement);
    return settlement;
}

}  // namespace lithmark
