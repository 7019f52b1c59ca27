#include "ui/frame/ProblemDialogs.h"

#include <algorithm>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "services/host/Host.h"
#include "ui/ProblemForms.h"
#include "ui/frmMethodtype.h"

namespace lithmark {

namespace {

void ShowDialogOf(int problemType) {
    const auto dialog = MakeProblemForm(problemType);
    if (dialog == nullptr) Fail(FailureKind::NoSuchForm);
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
    return std::ranges::any_of(ProblemCatalogue(), [&](const ProblemRow& problem) {
        return problem.MenuEntry == menuEntry && HasProblemForm(problem.ProblemType);
    });
}

void ShowProblemDialog(int menuEntry) {
    const int problem = ProblemOf(menuEntry).ProblemType;
    if (!IsTimeSettlement(problem)) return ShowDialogOf(problem);
    frmMethodtype method;
    CurrentHost().ShowForm(method);
    if (Session.DialogOk) ShowDialogOf(Session.ProblemType);
}

}  // namespace lithmark
