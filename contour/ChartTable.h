// The table of a chart as text.
#pragma once

#include <string>

#include "services/host/Charting.h"

namespace lithmark {

// Comma-separated values (RFC 4180): a row with the heads (title, symbol and unit joined by blanks) and the data rows,
// a point as decimal sign.
std::string ChartCsv(const ChartArguments& chart);
// The same parted by tabs, with the decimal sign in force, as a spreadsheet takes it from the clipboard.
std::string ChartTabs(const ChartArguments& chart);

}  // namespace lithmark
