// A result of the points over one of their coordinates.
#pragma once

#include <vector>

#include "services/host/Charting.h"
#include "study/window/Points.h"

namespace lithmark {

// Points that differ in this coordinate alone are a curve, as long as there are few of them; otherwise every point
// stands by itself. `numbers` has the result of each row of the table in base units, kMissing where there is none.
ChartArguments PointsChart(const PointsTable& points, int result, int coordinate, const std::vector<float>& numbers);

}  // namespace lithmark
