// The drawings that stand beside a problem's fields and in its report, found by the name that the form's picture gives.
// A drawing is a file and nothing else: StressDrawing.cpp has the function StressDrawing, whose name is "stress".
#pragma once

#include <string>

namespace lithmark {

class Sketch;

// Draws what the sketch's form holds into the sketch's area.
using DrawingFunction = void (*)(Sketch& sketch);

// Null when there is no drawing of the name.
DrawingFunction FindDrawing(const std::string& name);

}  // namespace lithmark
