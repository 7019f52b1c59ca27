#include "kernels/raft/ThickClay.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "report/Notices.h"
#include "services/SharedServices.h"
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

        system.TrueSettlement(trueSettlement);
        NumericLib::MatVec(n, *system.Flexibility, Session.NodeForce, linear);
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
        SharedServices().ReportProgress(0.9 + 0.1 * pass / (Session.PrefImax + 1.0));

        extra.Redim(1, n);
        NumericLib::MatVec(n, *system.Stiffness, lack, extra);
        extra.Grow(all);
        if (system.Spread) system.Spread(extra);
        carried = {Sum(extra), MomentSum(*system.v, extra), MomentSum(*system.u, extra)};
    }
}

}  // namespace lithmark
