#include "ui/ProblemForms.h"

#include <algorithm>

#include "core/Problems.h"
#include "ui/frmConsolidation.h"
#include "ui/frmConsolidationRate.h"
#include "ui/frmRigidConsolidation.h"
#include "ui/frmRigidDisplacement.h"
#include "ui/frmTimeSettlement1.h"
#include "ui/frmTimeSettlement2.h"
#include "ui/frmTimeSettlement3.h"
#include "ui/frmstress.h"

namespace lithmark {

namespace {

template <typename F>
std::unique_ptr<ProblemForm> Make() {
    return std::make_unique<F>();
}

// A dialog is a row here; until then its menu entry stays disabled.
struct FormOfProblem {
    int ProblemType;
    std::unique_ptr<ProblemForm> (*MakeForm)();
};
constexpr FormOfProblem kForms[] = {
    {Problem::SoilStress, Make<frmstress>},
    {Problem::SoilStrain, Make<frmstress>},
    {Problem::SoilDisplacement, Make<frmstress>},
    {Problem::Consolidation, Make<frmConsolidation>},
    {Problem::ConsolidationRate, Make<frmConsolidationRate>},
    {Problem::TimeDirect, Make<frmTimeSettlement1>},
    {Problem::TimeOedometer, Make<frmTimeSettlement2>},
    {Problem::TimeTheory, Make<frmTimeSettlement3>},
    {Problem::RaftDisplacement, Make<frmRigidDisplacement>},
    {Problem::RaftConsolidation, Make<frmRigidConsolidation>},
};

const FormOfProblem* FindForm(int problemType) {
    const auto row = std::ranges::find(kForms, problemType, &FormOfProblem::ProblemType);
    return row == std::end(kForms) ? nullptr : row;
}

}  // namespace

std::unique_ptr<ProblemForm> MakeProblemForm(int problemType) {
    const FormOfProblem* row = FindForm(problemType);
    return row == nullptr ? nullptr : row->MakeForm();
}

bool HasProblemForm(int problemType) {
    return FindForm(problemType) != nullptr;
}

}  // namespace lithmark
