#include "kernels/raft/BasRectangularRigidRaft.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/FormerResults.h"
#include "kernels/raft/RaftNotices.h"
#include "kernels/raft/RaftProgress.h"
#include "kernels/raft/RaftRun.h"
#include "kernels/raft/RaftTables.h"
#include "kernels/raft/RectangularAnalytical.h"
#include "kernels/raft/RectangularInfluence.h"
#include "kernels/raft/RectangularNumerical.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

class RectangularRaft {
  public:
    RectangularRaft(const RaftInput& input, Single& z, Single& h) : input_(input), entered_(input), z_(z), h_(h) {}

    void Run() {
        SharedServices().SetPointer(PointerShape::Hourglass);
        SharedServices().ReportProgress(0);
        MeasuresOfRaft() = {};
        depthStep_ = Sqrt(Square(input_.B) + Square(input_.A)) / 2;
        PrepareNodes();
        if (input_.AnalysisType) {
            z_ = input_.z = 0;
            PunchForces(mesh_, input_, Session.NodeForce);
        }
        if (Session.ProblemType == Problem::RaftDisplacement)
            SettleElasticLayer();
        else
            SettleClay();
        TakeResults();
        SharedServices().ReportProgress(1);
        RaiseRaftNotices(entered_, result_);
        if (Steps().On()) AddNodeTable(result_);
        ExportRaft(result_);
        Session.Nue = SoilFileNue(result_.Input);
        WriteRaftReport(result_);
        SharedServices().SetPointer(PointerShape::Default);
    }

  private:
    void PrepareNodes() {
        mesh_ = BuildRectangularMesh(input_.A, input_.B, Session.PrefDx, Session.PrefDy);
        const int n = mesh_.Nodes();
        Session.NodeX = mesh_.NodeX;
        Session.NodeY = mesh_.NodeY;
        Session.NodeArea = mesh_.NodeArea;
        Session.NodeForce.Redim(1, n);
        Session.NodePressure.Redim(1, n);
        Session.NodeSettlement.Redim(1, n);
        Session.RaftMidCount = mesh_.Columns();
        for (Array<Single>* row : {&Session.RaftMidX, &Session.RaftMidSettlement, &Session.RaftMidPressure,
                                   &Session.RaftMidFlexible, &result_.MidForce})
            row->Redim(1, Session.RaftMidCount);
        Session.RaftMeanPressure = Quotient(input_.Q, input_.A * input_.B);
    }

    void SettleElasticLayer() {
        const Single nu = Session.Nue;
        if (input_.AnalysisType)
            ElasticPunchSettlement(mesh_, input_, nu, Session.NodeForce, Session.NodeSettlement);
        else
            SolveElasticLayer(mesh_, input_);
        if (input_.AnalysisType)
            CompareHalfSpace(nu);
        else
            CompareElastic(RectCornerLayer(mesh_.ElemHalfX, mesh_.ElemHalfY, input_.h, nu),
                           [&](Single dx, Single dy) { return PointLayer(dx, dy, input_.h, nu); });
    }

    void SettleClay() {
        if (input_.SoilPropertyType == SoilDefinition::ByModulus) {
            if (input_.AnalysisType) {
                ConfinedPunchSettlement(mesh_, input_, Session.NodeForce, Session.NodeSettlement);
                CompareHalfSpace(0);
                return;
            }
            SolveUniformClay(mesh_, input_);
            CompareClay({});
        } else if (input_.SoilPropertyType == SoilDefinition::ByCompressionIndex) {
            CompareClay(SettleCompressibleClay());
        }
    }

    ClayLayer SettleCompressibleClay() {
        if (input_.AnalysisType) {
            ClayPunchSettlement(mesh_, input_, depthStep_, Session.NodeForce, Session.NodeSettlement);
            h_ = input_.h;
            return AnalyticalClay(input_, depthStep_);
        }
        ClayLayer clay = NumericalClay(input_, depthStep_);
        if (clay.Thick)
            SolveThickClay(mesh_, input_, clay);
        else
            SolveThinClay(mesh_, input_, clay);
        return clay;
    }

    // Flexible comparison: the settlement of the middle row under the mean pressure alone.
    template <typename At>
    void CompareMiddleRow(const At& at) {
        for (int i = 1; i <= Session.RaftMidCount; ++i) {
            compared_ = kSettled + (1 - kSettled) * (i - 1) / Session.RaftMidCount;
            SharedServices().ReportProgress(compared_);
            Session.RaftMidFlexible(i) = at(mesh_.Node(i, mesh_.MiddleRow()));
        }
    }
    template <typename PointFactor>
    void CompareElastic(Single cornerFactor, const PointFactor& pointFactor) {
        const NodeLoads loads = LoadsByPressure(mesh_, Session.RaftMeanPressure);
        const Single own = Quotient(cornerFactor, input_.Es);
        const auto point = [&](Single dx, Single dy) -> Single { return Quotient(pointFactor(dx, dy), input_.Es); };
        CompareMiddleRow([&](int t) { return SuperposeAt(mesh_, t, loads, own, point) * 100; });
    }
    void CompareHalfSpace(Single nu) {
        CompareElastic(RectCornerHalfSpace(mesh_.ElemHalfX, mesh_.ElemHalfY, nu),
                       [nu](Single dx, Single dy) { return PointHalfSpace(dx, dy, nu); });
    }
    void CompareClay(const ClayLayer& clay) {
        const NodeLoads loads = LoadsByPressure(mesh_, Session.RaftMeanPressure);
        CompareMiddleRow([&](int t) {
            return FlexibleClaySettlement(input_, clay, [&](Single z1, Single z2) {
                SharedServices().ReportProgress(compared_);
                return SuperposeAt(mesh_, t, loads, MeanCornerFactor(mesh_.ElemHalfX, mesh_.ElemHalfY, z1, z2),
                                   [&](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); });
            });
        });
    }

    void TakeResults() {
        for (int i = 1; i <= mesh_.Nodes(); ++i)
            Session.NodePressure(i) = Quotient(Session.NodeForce(i), Session.NodeArea(i));
        for (int i = 1; i <= Session.RaftMidCount; ++i) {
            const int node = mesh_.Node(i, mesh_.MiddleRow());
            result_.MidForce(i) = Session.NodeForce(node);
            Session.RaftMidSettlement(i) = Session.NodeSettlement(node);
            Session.RaftMidPressure(i) = Session.NodePressure(node);
            Session.RaftMidX(i) = Session.NodeX(node);
        }
        result_.Input = input_;
        result_.NX = mesh_.nx;
        result_.NY = mesh_.ny;
        result_.GridX = mesh_.GridX;
        result_.GridY = mesh_.GridY;
        result_.Elements = std::move(mesh_.Elements);
    }

    RaftInput input_;
    const RaftInput entered_;
    Single& z_;
    Single& h_;
    Single depthStep_;
    RectangularMesh mesh_;
    RaftResult result_;
    double compared_ = kSettled;  // how far the run is in the flexible comparison
};

}  // namespace

void ComputeRectangularRaft(Single& z, Single Q, Single A, Single B, Single& h, Single eo, Single Po, Single Cc,
                            Single Es, Integer SoilPropertyType, Single Exz_x, Single Exz_y, Single Gamma,
                            bool AnalysisType, bool SettlementAt) {
    const RaftInput input{z,           Q, A, B, h, eo, Po, Cc, Es, SoilPropertyType, Exz_x, Exz_y, Gamma, AnalysisType,
                          SettlementAt};
    const double dx = Session.PrefDx, dy = Session.PrefDy;
    RunKernel([&] { RunUnlessCancelled(z, h, [&] { RectangularRaft(input, z, h).Run(); }); },
              [&] { return CauseInRaft(input, dx, dy); });
}

}  // namespace lithmark
