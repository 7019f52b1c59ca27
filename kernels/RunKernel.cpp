#include "kernels/RunKernel.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "kernels/consolidation/BasConsolidationRate.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "kernels/raft/BasRectangularRigidRaft.h"
#include "kernels/stress/BasSoilStress.h"
#include "kernels/timesettlement/BasTimeSettlement.h"
#include "report/Notices.h"
#include "report/StepTables.h"

namespace lithmark {

bool RunProblemKernel() {
    SessionRecord& p = Session;
    switch (static_cast<int>(p.ProblemType)) {
        case Problem::SoilStress:
        case Problem::SoilStrain:
        case Problem::SoilDisplacement:
            ComputeSoilStress(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.Nue, p.Es, p.LoadType);
            return true;
        case Problem::Consolidation:
            ComputeConsolidation(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.h, p.eo, p.Po, p.Gamma, p.Cc, p.Es, p.LoadType,
                                 p.SoilPropertyType);
            return true;
        case Problem::ConsolidationRate:
            ComputeConsolidationRate(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.LoadType, p.U, p.T, p.NumLayers, p.hLayer,
                                     p.CvLayer, p.KLayer, p.DrainageCondition, p.Pressure, p.TimeUnit);
            return true;
        case Problem::TimeDirect:
        case Problem::TimeOedometer:
        case Problem::TimeTheory:
            ComputeTimeSettlement();
            return true;
        case Problem::RaftDisplacement:
        case Problem::RaftConsolidation:
            if (p.LoadType == LoadShape::Rectangle)
                ComputeRectangularRaft(p.z, p.Q, p.A, p.B, p.h, p.eo, p.Po, p.Cc, p.Es, p.SoilPropertyType, p.Exz_x,
                                       p.Exz_y, p.Gamma, p.AnalysisType, p.SettlementAt);
            else if (p.LoadType == LoadShape::Circle)
                ComputeCircularRaft(p.z, p.Q, p.A, p.h, p.eo, p.Po, p.Cc, p.Es, p.SoilPropertyType, p.Exz_x, p.Gamma,
                                    p.AnalysisType, p.SettlementAt);
            else
                break;
            return true;
        default:
            break;
    }
    Notices().Clear();
    return false;
}

}  // namespace lithmark
