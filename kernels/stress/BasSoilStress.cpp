#include "kernels/stress/BasSoilStress.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/CircularLoad.h"
#include "kernels/elastic/PointLoad.h"
#include "kernels/elastic/RectangularLoad.h"
#include "kernels/stress/SoilStressReport.h"
#include "kernels/stress/StressNotices.h"
#include "kernels/stress/StressTables.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Hooke's law (1678) for an isotropic body; stresses from Session.
void ComputeStrains(Single Nue, Single E) {
    const Single G = Quotient(E, (1 + Nue) + (1 + Nue));
    Session.Varepsilon_x = Quotient(Session.Sigma_x - (Session.Sigma_y + Session.Sigma_z) * Nue, E);
    Session.Varepsilon_y = Quotient(Session.Sigma_y - (Session.Sigma_x + Session.Sigma_z) * Nue, E);
    Session.Varepsilon_z = Quotient(Session.Sigma_z - (Session.Sigma_x + Session.Sigma_y) * Nue, E);
    Session.Gamma_xy = Quotient(Session.Tau_xy, G);
    Session.Gamma_xz = Quotient(Session.Tau_xz, G);
    Session.Gamma_yz = Quotient(Session.Tau_yz, G);
}

}  // namespace

void SolveSoilStress(const SoilStressInput& in, CornerRecord* record) {
    const Single zc = FormulaDepth(in.z);
    switch (in.LoadType) {
        case LoadShape::Point:
            ComputePointLoad(in, zc);
            break;
        case LoadShape::Rectangle:
            ComputeRectangularLoad(in, zc, record);
            break;
        case LoadShape::Circle:
            ComputeCircularLoad(in, zc);
            break;
        default:
            break;
    }
    ComputeStrains(in.Nue, in.Es);
}

void ComputeSoilStress(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Single Nue, Single Es,
                       Integer LoadType) {
    const SoilStressInput in{x, y, z, Q, P, A, B, Nue, Es, LoadType};
    const auto run = [&] {
        SharedServices().SetPointer(PointerShape::Hourglass);
        Session.A0 = A;
        CornerRecord corners;
        SolveSoilStress(in, Steps().On() ? &corners : nullptr);
        SharedServices().SetPointer(PointerShape::Default);
        WriteSoilStressReport(in);
        RaiseStressNotices(in);
        if (Steps().On()) AddCornerTables(in, corners);
    };
    RunKernel(run, [&] { return CauseInStress(in); });
}

}  // namespace lithmark
