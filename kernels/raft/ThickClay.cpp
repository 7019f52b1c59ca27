#include "kernels/raft/ThickClay.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "kernels/raft/RaftProgress.h"
#include "report/Notices.h"
#include "services/numerics/NumericLib.h"

namespace lithmark {

namespace {

Single Sum(const Array<Single>& values) {
    Single sum;
    for (const Single value : values) sum += value;
    return sum;
}

Single MomentSum(const Array<Single>& distances, const Array<Single>& forces) {
    Single sum;
    for (int i = 1; i <= forces.Upper(); ++i) sum += distances(i) * forces(i);
    return sum;
}

}  // namespace

void UseMatrices(ThickClaySystem& system, const Matrix<Single>& flexibility, const Matrix<Single>& stiffness) {
    const auto product = [n = system.n](const Matrix<Single>& matrix) {
        return [n, &matrix](const Array<Single>& x, Array<Single>& y, const ThickClaySystem::Progress& progress) {
            NumericLib::MatVec(n, matrix, x, y, progress);
        };
    };
    system.Settlements = product(flexibility);
    system.Forces = product(stiffness);
}

void IterateThickClay(const ThickClaySystem& system) {
    const int n = system.n, all = Session.NodeForce.Upper();
    RaftLoad carried;
    Array<Single> extra(1, all), old(1, n), current(1, n), trueSettlement(1, n), linear(1, n), lack(1, n);
    for (int pass = 1;; ++pass) {
        const RaftPlane plane = system.Equilibrium->Solve(system.Load, carried);
        system.Equilibrium->NodeForces(plane, Session.NodeForce);
        if (system.Spread) system.Spread(Session.NodeForce);
        PlaneSettlements(plane, *system.u, *system.v, Session.NodeSettlement);
        for (int i = 1; i <= all; ++i) Session.NodeForce(i) += extra(i);

        const auto share = [pass](double from, double to) {
            const double width = (kSettled - kEquilibriumDone) / (Session.PrefImax + 1.0);
            const double start = kEquilibriumDone + (pass - 1) * width;
            return ProgressBetween(start + from * width, start + to * width);
        };
        system.TrueSettlement(trueSettlement, share(0, 0.6));
        system.Settlements(Session.NodeForce, linear, share(0.6, 0.7));
        for (int i = 1; i <= n; ++i) {
            lack(i) = linear(i) - trueSettlement(i);
            current(i) = Session.NodeSettlement(i) / 100;
        }
        const bool standsStill = NumericLib::VectorsConverged(n, current, old, Session.PrefTol);
        if (standsStill) return;
        if (pass > Session.PrefImax) {
            Notices().Raise(NoticeId::IterationEnd, 907011_text, {NumberToText(pass)});
            return;
        }

        extra.Redim(1, n);
        system.Forces(lack, extra, share(0.7, 1));
        extra.Grow(all);
        if (system.Spread) system.Spread(extra);
        carried = {Sum(extra), MomentSum(*system.v, extra), MomentSum(*system.u, extra)};
    }
}

}  // namespace lithmark
