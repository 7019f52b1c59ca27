// The keys of a form's window.
#pragma once

class QWidget;

namespace lithmark {

class FormView;

// Keys that press the form's buttons (Ctrl+S saves, Ctrl+P prints, ...), told in their tooltips. A layout has placed
// its buttons before.
void BindKeys(FormView& view);

// The control that has the focus at first: the first number on the way of the Tab key, in a window without numbers the
// first control.
QWidget* FirstStop(FormView& view);

}  // namespace lithmark
