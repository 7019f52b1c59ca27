// The buttons of a problem's dialog that lead to its study and its points.
#pragma once

class QBoxLayout;
class QWidget;

namespace lithmark {

class FormView;
class ProblemForm;

// Puts them into a row of buttons, ahead of the form's results, on the way of the Tab key too. The form lives as long
// as the view. Returns the button of the study, which is for windows whose answer, with a button of its own, is hidden.
QWidget* AddStudyButtons(FormView& view, ProblemForm& form, QBoxLayout& row);

}  // namespace lithmark
