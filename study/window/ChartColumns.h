// A chart made of columns of numbers.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "services/host/Charting.h"

namespace lithmark {

inline constexpr double kEmptyCell = std::numeric_limits<double>::quiet_NaN();

struct ChartColumn {
    std::string Name;
    LineStyle Style = LineStyle::Solid;
    std::vector<double> Values;  // kEmptyCell: an empty cell
};

// "Settlement s [cm]"
std::string AxisTitle(const std::string& label, const std::string& symbol, const std::string& unit);

// Columns of one length, the first one along the axis. The heading lines are those of the open project.
ChartArguments ChartOfColumns(const std::string& title, const std::string& xTitle, const std::string& yTitle,
                              const std::vector<ChartColumn>& columns);

// A row behind the others in which one column alone has a value beside the first.
void AddPoint(std::vector<ChartColumn>& columns, std::size_t column, double x, double y);

}  // namespace lithmark
