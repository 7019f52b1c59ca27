// The drawings that stand beside a problem's fields, found by the name that the form's picture gives. A drawing makes
// itself known in its own file: `const DrawingNamed kDrawing("stress", Draw);`.
#pragma once

#include <string>

namespace lithmark {

class Sketch;

// Draws what the sketch's form holds into the sketch's area.
using DrawingFunction = void (*)(Sketch& sketch);

struct DrawingNamed {
    DrawingNamed(const char* name, DrawingFunction draw);
};

// Null when there is no drawing of the name.
DrawingFunction FindDrawing(const std::string& name);

}  // namespace lithmark
