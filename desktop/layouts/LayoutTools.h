// Pieces that layouts are made of. Controls are named by reference; each is placed once.
#pragma once

#include "ui/model/FieldForm.h"

class QBoxLayout;
class QGridLayout;
class QVBoxLayout;
class QWidget;

namespace lithmark {

class FormView;

// The grid of a group: label, symbol, box and unit in columns of one width for all groups.
QGridLayout* FieldGrid(QWidget* group);

// Controls one under another: the line of a field for its box, any other control by itself. The form knows its fields;
// without it every control stands by itself.
void AddLines(FormView& view, const FieldForm* form, QGridLayout& grid, const ControlList& controls);
// A label and what it is for, in a line of a grid.
void AddLabelled(FormView& view, QGridLayout& grid, Control& label, Control& box);

// Fills the box of a frame with lines.
void FillGroup(FormView& view, const FieldForm& form, FrameBox& frame, const ControlList& controls);
void FillGroup(FormView& view, FrameBox& frame, const ControlList& controls);

// The column of a whole window, with its edges.
QVBoxLayout* WindowColumn(FormView& view);
// A row of buttons, the first ones at the side where the language begins, the others at its end.
QBoxLayout* ButtonRow(FormView& view, const ControlList& begin, const ControlList& end);

}  // namespace lithmark
