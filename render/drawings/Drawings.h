// The drawings that stand beside a problem's fields and in its report, found by the name that the form's picture gives.
// A drawing has a file of its own, a line here and a row in the table of Drawings.cpp.
#pragma once

#include <string>

namespace lithmark {

class Sketch;

// Draws what the sketch's form holds into the sketch's area.
using DrawingFunction = void (*)(Sketch& sketch);

void StressDrawing(Sketch& sketch);
void ConsolidationDrawing(Sketch& sketch);
void RateDrawing(Sketch& sketch);
void BuildingDrawing(Sketch& sketch);
void RaftDrawing(Sketch& sketch);
void LogoDrawing(Sketch& sketch);

// Null when there is no drawing of the name.
DrawingFunction FindDrawing(const std::string& name);

}  // namespace lithmark
