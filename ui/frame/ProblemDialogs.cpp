#include "ui/frame/ProblemDialogs.h"

#include <algorithm>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "services/host/Host.h"
#include "ui/frmConsolidation.h"
#include "ui/frmConsolidationRate.h"
#include "ui/frmMethodtype.h"
#include "ui/frmRigidConsolidation.h"
#include "ui/frmRigidDisplacement.h"
#include "ui/frmTimeSettlement1.h"
#include "ui/frmTimeSettlement2.h"
#include "ui/frmTimeSettlement3.h"
#include "ui/frmstress.h"

namespace lithmark {

namespace {

// Stands in the table for the choice of the method, which belongs to three problems.
constexpr int kMethodChoice = 0;

template <typename F>
std::unique_ptr<Form> Make() {
    return std::make_unique<F>();
}

// A dialog is a row here; until then its menu entry stays disabled.
struct DialogRow {
    int ProblemType;
    std::unique_ptr<Form> (*MakeDialog)();
};
constexpr DialogRow kDialogs[] = {
    {Problem::SoilStress, Make<frmstress>},
    {Problem::SoilStrain, Make<frmstress>},
    {Problem::SoilDisplacement, Make<frmstress>},
    {Problem::Consolidation, Make<frmConsolidation>},
    {Problem::ConsolidationRate, Make<frmConsolidationRate>},
    {kMethodChoice, Make<frmMethodtype>},
    {Problem::TimeDirect, Make<frmTimeSettlement1>},
    {Problem::TimeOedometer, Make<frmTimeSettlement2>},
    {Problem::TimeTheory, Make<frmTimeSettlement3>},
    {Problem::RaftDisplacement, Make<frmRigidDisplacement>},
    {Problem::RaftConsolidation, Make<frmRigidConsolidation>},
};

const DialogRow* FindDialog(int problemType) {
    const auto row = std::find_if(std::begin(kDialogs), std::end(kDialogs),
                                  [&](const DialogRow& dialog) { return dialog.ProblemType == problemType; });
    return row == std::end(kDialogs) ? nullptr : row;
}

void ShowDialogOf(int problemType) {
    const DialogRow* row = FindDialog(problemType);
    if (row == nullptr) Fail(FailureKind::NoSuchForm);
    const auto dialog = row->MakeDialog();
    CurrentHost().ShowForm(*dialog);
}

// The problem that stands for an entry, and for the others of the entry if there are any.
const ProblemRow& ProblemOf(int menuEntry) {
    const ProblemRow* problem = FirstProblemOf(menuEntry);
    if (problem == nullptr) Fail(FailureKind::NoSuchForm);
    return *problem;
}

}  // namespace

bool ProblemDialogExists(int menuEntry) {
    const ProblemRow* first = FirstProblemOf(menuEntry);
    if (first == nullptr) return false;
    if (IsTimeSettlement(first->ProblemType) && FindDialog(kMethodChoice) == nullptr) return false;
    return std::ranges::any_of(ProblemCatalogue(), [&](const ProblemRow& problem) {
        return problem.MenuEntry == menuEntry && FindDialog(problem.ProblemType) != nullptr;
    });
}

void ShowProblemDialog(int menuEntry) {
    const int problem = ProblemOf(menuEntry).ProblemType;
    if (!IsTimeSettlement(problem)) return ShowDialogOf(problem);
    ShowDialogOf(kMethodChoice);
    if (Session.DialogOk) ShowDialogOf(Session.ProblemType);
}

}  // namespace lithmark
