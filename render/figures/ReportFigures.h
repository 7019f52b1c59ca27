// What a report shows besides its text: the problem's drawing with its dimensions, the curves of its results, and a
// raft's contour lines.
#pragma once

#include <vector>

#include "render/ReportPaper.h"

namespace lithmark {

// The drawing of the problem in force, with the values that Session holds. Empty where the problem has none.
std::vector<ReportFigure> DrawingFigures();

// All curve sets of the run, and the contour lines of settlements and contact pressures. Contours need the files that
// a raft run writes beside the project; a Failure when they are missing.
std::vector<ReportFigure> ResultFigures();
// Whether the problem in force has results to be drawn.
bool ProblemHasFigures();

// The paper in force with its figures: the drawing, and, if asked for, those of the results.
enum class Figures { Drawing, All };
ReportPaper PaperWithFigures(Figures figures);

}  // namespace lithmark
