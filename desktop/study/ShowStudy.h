// The ways from a problem's dialog to its study and its points.
#pragma once

class QWidget;

namespace lithmark {

class ProblemForm;

// Shows the study of what the dialog holds, modally. A box that keeps the dialog from being stored is told and gets the
// focus instead. Nothing that the study does is seen by the dialog, the project or its files.
void ShowStudy(ProblemForm& form, QWidget* parent);
// The same for the table of points; the form is one of stresses, strains or displacements in soil.
void ShowPoints(ProblemForm& form, QWidget* parent);

}  // namespace lithmark
