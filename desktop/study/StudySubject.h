// What the windows of studies are about: what a dialog holds, as far as a study can change and take it.
#pragma once

#include <string>
#include <vector>

#include "study/window/FieldChoices.h"
#include "study/window/ResultChoices.h"

class QLabel;
class QWidget;

namespace lithmark {

struct StudySubject {
    std::string Title;  // of the dialog
    SessionRecord Draft;
    bool Modified = false;  // the draft is not what is saved
    std::vector<FieldChoice> Fields;
    std::vector<ResultChoice> Results;
    int First = 0;  // the field that varies at first
};

// Of a form and the record of its draft, which is valid; symbols as windows write them.
StudySubject SubjectOf(const ProblemForm& form, const SessionRecord& draft);

// The project file that a command names.
std::string SavedProject();
// A label that says whether the input is saved.
QLabel* InputLabel(QWidget* parent, const StudySubject& subject);
// A label for words of so many lines, at the side where the language begins.
QLabel* WordsLabel(QWidget* parent, const char* name, int lines);

}  // namespace lithmark
