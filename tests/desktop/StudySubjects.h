// What the windows of studies are shown for in tests: a dialog's draft.
#pragma once

#include <memory>

#include "desktop/study/StudySubject.h"
#include "ui/ProblemForms.h"

namespace lithmark::tests {

// The dialog of a problem, loaded.
inline std::unique_ptr<ProblemForm> LoadedDialog(int problem) {
    Session.ProblemType = problem;
    auto form = MakeProblemForm(problem);
    form->Reopen();
    form->Load();
    return form;
}

// A study of it over the field of a name.
inline StudySubject SubjectOf(const ProblemForm& form, const std::string& first) {
    StudySubject subject = lithmark::SubjectOf(form, form.Draft().Record);
    for (std::size_t i = 0; i < subject.Fields.size(); ++i)
        if (subject.Fields[i].Name == first) subject.First = static_cast<int>(i);
    return subject;
}

}  // namespace lithmark::tests
