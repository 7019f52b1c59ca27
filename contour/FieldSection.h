// The curve of a field's values along a section line, as a chart.
#pragma once

#include <optional>
#include <string>

#include "contour/FieldPlot.h"
#include "services/host/Charting.h"

namespace lithmark {

// The line through the middle of the raft, from its left to its right end.
FieldLine MiddleLine(const BasContour& plot);
// "X1,Y1,X2,Y2" in metres; nothing where that is not what the text holds, or where the ends are the same.
std::optional<FieldLine> ParseFieldLine(const std::string& text);

// Distance in the unit of length in force over the values in the unit of the caption. Cells have the digits that the
// curve needs. The rows are none where the section misses the raft.
ChartArguments SectionChart(const FieldPlot& field, const FieldLine& line);

// The title of the plot's values with their symbol and unit: "Contact pressure q [kN/m²]".
std::string FieldTitle();
// The unit alone, in its brackets.
std::string FieldUnit();

}  // namespace lithmark
