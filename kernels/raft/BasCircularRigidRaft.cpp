#include "kernels/raft/BasCircularRigidRaft.h"

#include "core/Session.h"
#include "kernels/raft/CircularRaftRun.h"
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/FormerResults.h"
#include "kernels/raft/RaftNotices.h"
#include "kernels/raft/RaftRun.h"
#include "kernels/raft/RaftTables.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Gives z and h of a run back to its caller, also when it fails half-way.
class GiveBack {
  public:
    GiveBack(const RaftInput& input, Single& z, Single& h) : input_(input), z_(z), h_(h) {}
    GiveBack(const GiveBack&) = delete;
    GiveBack& operator=(const GiveBack&) = delete;
    ~GiveBack() {
        z_ = input_.z;
        h_ = input_.h;
    }

  private:
    const RaftInput& input_;
    Single &z_, &h_;
};

}  // namespace

void ComputeCircularRaft(Single& z, Single Q, Single A, Single& h, Single eo, Single Po, Single Cc, Single Es,
                         Integer SoilPropertyType, Single Exz_x, Single Gamma, bool AnalysisType, bool SettlementAt) {
    RaftInput input;
    input.z = z;
    input.Q = Q;
    input.A = A;
    input.B = Session.B;
    input.h = h;
    input.eo = eo;
    input.Po = Po;
    input.Cc = Cc;
    input.Es = Es;
    input.SoilPropertyType = SoilPropertyType;
    input.Exz_x = Exz_x;
    input.Exz_y = Session.Exz_y;
    input.Gamma = Gamma;
    input.AnalysisType = AnalysisType;
    input.SettlementAt = SettlementAt;
    const RaftInput entered = input;
    const auto run = [&] {
        SharedServices().SetPointer(PointerShape::Hourglass);
        SharedServices().ReportProgress(0);
        Session.A0 = A;
        const GiveBack giveBack(input, z, h);
        MeasuresOfRaft() = {};
        const RaftResult result = CalculateCircularRaft(input);
        RaiseRaftNotices(entered, result);
        if (Steps().On()) AddNodeTable(result);
        ExportRaft(result);
        Session.Nue = SoilFileNue(result.Input);
        WriteRaftReport(result);
        SharedServices().SetPointer(PointerShape::Default);
    };
    RunKernel([&] { RunUnlessCancelled(z, h, run); },
              [&] { return CauseInRaft(entered, Session.PrefDx, Session.PrefDy); });
}

}  // namespace lithmark
