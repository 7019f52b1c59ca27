// Where the controls of each form stand. A layout places the view's widgets; it holds no behaviour.
#pragma once

namespace lithmark {

class FormView;

// The layout of the form's name; a form without one has its controls one under another.
void BuildLayout(FormView& view);
// After every refresh: what a layout shows or hides with its controls.
void RefreshLayout(FormView& view);

void LayoutStress(FormView& view);
void LayoutResultTools(FormView& view);
void LayoutOptionDraw(FormView& view);

}  // namespace lithmark
