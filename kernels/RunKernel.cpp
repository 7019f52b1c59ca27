#include "kernels/RunKernel.h"

#include "core/Session.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "kernels/consolidation/BasConsolidationRate.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "kernels/raft/BasRectangularRigidRaft.h"
#include "kernels/stress/BasSoilStress.h"
#include "kernels/timesettlement/BasTimeSettlement.h"

namespace lithmark {

bool RunProblemKernel() {
    SessionRecord& p = Session;
    switch (static_cast<int>(p.ProblemType)) {
        case 1:
        case 2:
        case 3:
            ComputeSoilStress(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.Nue, p.Es, p.LoadType);
            return true;
        case 4:
            ComputeConsolidation(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.h, p.eo, p.Po, p.Gamma, p.Cc, p.Es, p.LoadType,
                                 p.SoilPropertyType);
            return true;
        case 5:
            ComputeConsolidationRate(p.x, p.y, p.z, p.Q, p.P, p.A, p.B, p.LoadType, p.U, p.T, p.NumLayers, p.hLayer,
                                     p.CvLayer, p.KLayer, p.DrainageCondition, p.Pressure, p.TimeUnit);
            return true;
        case 6:
        case 7:
        case 8:
            ComputeTimeSettlement();
            return true;
        case 9:
        case 10:
            if (p.LoadType == 2)
                ComputeRectangularRaft(p.z, p.Q, p.A, p.B, p.h, p.eo, p.Po, p.Cc, p.Es, p.SoilPropertyType, p.Exz_x,
                                       p.Exz_y, p.Gamma, p.AnalysisType, p.SettlementAt);
            else if (p.LoadType == 3)
                ComputeCircularRaft(p.z, p.Q, p.A, p.h, p.eo, p.Po, p.Cc, p.Es, p.SoilPropertyType, p.Exz_x, p.Gamma,
                                    p.AnalysisType, p.SettlementAt);
            return p.LoadType == 2 || p.LoadType == 3;
        default:
            return false;
    }
}

}  // namespace lithmark
