// The curve sets: a problem's results as a table with a chart description, ready for ShowChart.
//
// Problem 5 has one fixed set. The time-settlement problems have "Tab1" (load), "Tab2" (sudden-load curve), "Tab3"
// (settlement of the building) and "Tab4" (corrected settlement); the rafts "Tab5" (contact pressure) and "Tab6"
// (settlements along the middle row). core/CurveRequest.h has the choice and its
// units.
#pragma once

#include <string>
#include <vector>

#include "services/host/Charting.h"

namespace lithmark {

// The chart of Session.ProblemType and Session.CurveChoice from the results of the last run. Also fills Session's table
// fields. Throws Failure: a result missing (SubscriptRange), per cent of a final settlement of 0 (DivisionByZero).
ChartArguments BuildChart();

// Order, date, project and file, a line each: ChartArguments::ProjectText of the open project.
std::string ProjectTextInForce();

// The head of a column on one line: title, symbol and unit joined by blanks, words that the narrow head divides made
// whole again.
std::string ColumnHead(const ChartArguments& chart, int column);

// The heads of columns 1 to the last, each of its own: of two columns with one head the second has its curve's legend
// in place of the title.
std::vector<std::string> ColumnNames(const ChartArguments& chart);

}  // namespace lithmark
