// Where the controls of each form stand. A layout places the view's widgets; it holds no behaviour.
#pragma once

namespace lithmark {

class FormView;

// The layout of the form's name; a form without one gets LayoutPlain.
void BuildLayout(FormView& view);

void LayoutStress(FormView& view);
void LayoutResultTools(FormView& view);
void LayoutOptionDraw(FormView& view);
void LayoutProblemType(FormView& view);
void LayoutProjectCheck(FormView& view);
void LayoutAbout(FormView& view);
void LayoutDataDir(FormView& view);
void LayoutUnits(FormView& view);
void LayoutPreferences(FormView& view);
void LayoutPlain(FormView& view);

}  // namespace lithmark
