// The mark of a box that is not right: a frame of 2 in the colour of errors, a "!" inside, the reason as its tooltip. A
// screen reader has it in the description of the box (FieldNames.h).
#pragma once

#include <string>

class QLineEdit;

namespace lithmark {

// Shows the mark with a reason, or takes it away with an empty one.
void ShowMark(QLineEdit& box, const std::string& reason);

}  // namespace lithmark
