#include "desktop/study/ShowStudy.h"

#include <algorithm>

#include "desktop/FormView.h"
#include "desktop/study/PointsWindow.h"
#include "desktop/study/StudyWindow.h"
#include "files/CommonStep.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// The first box that keeps the draft from being worked with.
void TellFault(ProblemForm& form, const BoxFault& fault) {
    SharedServices().ShowMessageBox(form.Caption, fault.Reason, MessageIcon::Exclamation);
    if (FormView* view = FormView::Of(form)) view->FocusOn(*fault.Box);
}

// The field of the box that had the focus last, or else the first one that has a value.
int FirstField(const ProblemForm& form, const std::vector<FieldChoice>& fields) {
    const FieldRow* row = form.Focus == nullptr ? nullptr : form.RowOf(*form.Focus);
    const std::string name = row == nullptr ? std::string() : row->Field.Name();
    auto found =
        std::ranges::find_if(fields, [&](const FieldChoice& field) { return !name.empty() && field.Name == name; });
    if (found == fields.end())
        found = std::ranges::find_if(fields, [](const FieldChoice& field) { return field.Value != 0; });
    return found == fields.end() ? 0 : static_cast<int>(found - fields.begin());
}

// Runs a window on the form's draft.
template <typename Window>
void Show(ProblemForm& form, QWidget* parent) {
    UnderCommonStep([&] {
        const FormDraft draft = form.Draft();
        if (!draft.Valid()) return TellFault(form, draft.Faults.front());
        StudySubject subject = SubjectOf(form, draft.Record);
        subject.First = FirstField(form, subject.Fields);
        Window(subject, parent).exec();
    });
}

}  // namespace

void ShowStudy(ProblemForm& form, QWidget* parent) {
    Show<StudyWindow>(form, parent);
}

void ShowPoints(ProblemForm& form, QWidget* parent) {
    Show<PointsWindow>(form, parent);
}

}  // namespace lithmark
