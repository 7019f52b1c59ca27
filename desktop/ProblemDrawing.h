// Drawings of the problems in the symbols that the fields and the reports use.
#pragma once

#include <QRect>

class QPainter;

namespace lithmark {

// Stresses at a point: the half-space in parallel perspective with the load (0 point, 1 rectangle, 2 circle), the axes
// and the point with its coordinates.
void DrawStressProblem(QPainter& painter, const QRect& area, int load);

}  // namespace lithmark
