// The result that is drawn over both fields that vary, as a field of values: the first one across, the second one up.
#pragma once

#include <optional>
#include <string>

#include "contour/FieldChart.h"
#include "study/window/StudyCurves.h"

namespace lithmark {

// Nothing where the rows so far make no cell: a cell with a corner that aborted or is missing is a gap.
std::optional<FieldChart> ContourOf(const StudyQuestion& asked, const StudyCurves& curves);

// "h = 3.42 m, E_s = 8000 kN/m2: s = 5.31 cm"; the place alone in a gap.
std::string UnderContour(const StudyQuestion& asked, const FieldChart& chart, const FieldPoint& at);

// "s from 2.1 to 14.8 cm" with both fields, for those who hear it.
std::string ContourWords(const StudyQuestion& asked, const FieldChart& chart);

}  // namespace lithmark
