// What a screen reader says of a form's fields.
#pragma once

namespace lithmark {

class FormView;

// Gives every box, list, date and report its name: its label's words, or what stands before it where it has none. A box
// of a number is described by its symbol, its unit and its range, and by what is wrong with it.
void NameFields(FormView& view);

}  // namespace lithmark
