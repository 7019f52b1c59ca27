#include "kernels/consolidation/BasConsolidation.h"

#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/consolidation/ConsolidationNotices.h"
#include "kernels/consolidation/ConsolidationTables.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/elastic/RectangularLoad.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// The mean vertical stress increase below the point in a depth interval. Meshes are built once, for all intervals.
class MeanIncrease {
  public:
    explicit MeanIncrease(const ConsolidationInput& input) : in(input) {
        if (in.LoadType == LoadShape::Rectangle) rectangles = SplitRectangle(in.x, in.y, in.A, in.B);
        if (in.LoadType == LoadShape::Circle) mesh = BuildPolarMesh(Session.PrefND, Session.A0);
    }

    // Into Session.Sigma_z.
    void Work(Single z1, Single z2) const {
        switch (in.LoadType) {
            case LoadShape::Point:
                Session.Sigma_z = MeanPointFactor(in.x, in.y, z1, z2) * in.Q;
                break;
            case LoadShape::Rectangle:
                Session.Sigma_z = Rectangle(z1, z2);
                break;
            case LoadShape::Circle:
                Session.Sigma_z = Circle(z1, z2);
                break;
            default:
                break;
        }
    }

  private:
    Single Rectangle(Single z1, Single z2) const {
        Single sum = 0;
        double sign = 1;
        for (const SubRectangle& part : rectangles) {
            sum += sign * in.P * MeanCornerFactor(part.X, part.Y, z1, z2);
            sign = -sign;
        }
        return sum;
    }

    Single Circle(Single z1, Single z2) const {
        if (in.x == 0 && in.y == 0) return MeanCircleAxisFactor(Session.A0, z1, z2) * in.P;
        constexpr Single close = 0.001;
        Single sum = 0;
        for (int i = 1; i <= mesh.NTotal; ++i) {
            const Single dx = in.x - mesh.NodeX(i);
            const Single dy = in.y - mesh.NodeY(i);
            // Deliberate: a node under the point has no result; a point load right above has no mean stress.
            if (std::abs(dx) < close && std::abs(dy) < close) Fail(FailureKind::SubscriptRange);
            sum += in.P * mesh.NodeArea(i) * MeanPointFactor(dx, dy, z1, z2);
        }
        return sum;
    }

    const ConsolidationInput& in;
    SubRectangles rectangles{};
    PolarMesh mesh;
};

// The layer as a whole, by its modulus.
void SolveByModulus(const ConsolidationInput& in, const MeanIncrease& increase, std::vector<Sublayer>* record) {
    const Single z1 = in.z;
    const Single z2 = in.z + in.h;
    increase.Work(z1, z2);
    Session.s = Quotient(Session.Sigma_z * in.h * 100, in.Es);
    if (record != nullptr) record->push_back({z1, z2, 0, Session.Sigma_z, Session.s});
}

// Sublayers of about PrefDz, by the semi-logarithmic law.
void SolveByCompressionIndex(const ConsolidationInput& in, const MeanIncrease& increase,
                             std::vector<Sublayer>* record) {
    const Integer n = Integer::Rounded(Quotient(in.h, Session.PrefDz));
    const Single dz = Quotient(in.h, n);
    Array<Single> p(1, n);  // initial stress in the middle of each sublayer
    p(1) = dz * in.Gamma / 2 + in.Po;
    for (int i = 2; i <= n; ++i) p(i) = dz * in.Gamma + p(i - 1);
    const Single c = Quotient(dz * in.Cc, 1 + in.eo) / std::log(10.0) * 100;
    Session.s = 0;
    Single z1 = in.z;
    Single z2 = in.z + dz;
    for (int i = 1; i <= n; ++i) {
        increase.Work(z1, z2);
        const double share = c * Ln(Quotient(Session.Sigma_z + p(i), p(i)));
        Session.s += share;
        if (record != nullptr) record->push_back({z1, z2, p(i), Session.Sigma_z, share});
        z1 = z2;
        z2 = z1 + dz;
        SharedServices().ReportProgress(static_cast<double>(i) / n);
    }
}

}  // namespace

void SolveConsolidation(const ConsolidationInput& in, std::vector<Sublayer>* record) {
    const MeanIncrease increase(in);
    if (in.SoilPropertyType == SoilDefinition::ByModulus) SolveByModulus(in, increase, record);
    if (in.SoilPropertyType == SoilDefinition::ByCompressionIndex) SolveByCompressionIndex(in, increase, record);
}

void ComputeConsolidation(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Single h, Single eo,
                          Single Po, Single Gamma, Single Cc, Single Es, Integer LoadType, Integer SoilPropertyType) {
    const ConsolidationInput in{x, y, z, Q, P, A, B, h, eo, Po, Gamma, Cc, Es, LoadType, SoilPropertyType};
    const auto run = [&] {
        SharedServices().SetPointer(PointerShape::Hourglass);
        Session.A0 = A;
        std::vector<Sublayer> sublayers;
        SolveConsolidation(in, Steps().On() ? &sublayers : nullptr);
        SharedServices().SetPointer(PointerShape::Default);
        WriteConsolidationReport(in);
        RaiseConsolidationNotices(in);
        if (Steps().On()) AddSublayerTable(in, sublayers);
    };
    RunKernel(run, [&] { return CauseInConsolidation(in); });
}

}  // namespace lithmark
