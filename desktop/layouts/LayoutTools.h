// Pieces that layouts are made of.
#pragma once

#include <initializer_list>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QWidget;

namespace lithmark {

class FormView;

// One field on a line of a grid: label, symbol, box, unit; null where there is none.
struct FieldLine {
    const char* Label;
    const char* Symbol;
    const char* Box;
    const char* Unit;
};

// The group box of a frame, with a grid of fields in it: labels under each other, units beside the boxes.
QGroupBox* FieldGroup(FormView& view, const char* frame, std::initializer_list<FieldLine> lines);
// The group box of a frame with controls one under another.
QGroupBox* StackGroup(FormView& view, const char* frame, std::initializer_list<const char*> controls);
// Adds field lines to a grid.
void AddFieldLines(FormView& view, QGridLayout& grid, std::initializer_list<FieldLine> lines);
// A row of buttons, the first ones at the side where the language begins, the others at its end.
QBoxLayout* ButtonRow(FormView& view, std::initializer_list<const char*> begin, std::initializer_list<const char*> end);

}  // namespace lithmark
