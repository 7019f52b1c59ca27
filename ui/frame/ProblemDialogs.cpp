#include "ui/frame/ProblemDialogs.h"

#include <algorithm>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "services/host/Host.h"
#include "ui/frmstress.h"

namespace lithmark {

namespace {

// Stands in the table for the choice of the method, which belongs to three problems.
constexpr int kMethodChoice = 0;
constexpr int kTimeSettlementEntry = 6;

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
    {1, Make<frmstress>},
    {2, Make<frmstress>},
    {3, Make<frmstress>},
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

// The problem of an entry; of the three time-settlement problems the first.
int ProblemOf(int menuEntry) {
    for (const ProblemRow& problem : ProblemCatalogue())
        if (problem.MenuEntry == menuEntry) return problem.ProblemType;
    Fail(FailureKind::NoSuchForm);
}

}  // namespace

bool ProblemDialogExists(int menuEntry) {
    if (menuEntry == kTimeSettlementEntry && FindDialog(kMethodChoice) == nullptr) return false;
    const auto problems = ProblemCatalogue();
    return std::any_of(problems.begin(), problems.end(), [&](const ProblemRow& problem) {
        return problem.MenuEntry == menuEntry && FindDialog(problem.ProblemType) != nullptr;
    });
}

void ShowProblemDialog(int menuEntry) {
    if (menuEntry != kTimeSettlementEntry) return ShowDialogOf(ProblemOf(menuEntry));
    ShowDialogOf(kMethodChoice);
    if (Session.DialogOk) ShowDialogOf(Session.ProblemType);
}

}  // namespace lithmark
