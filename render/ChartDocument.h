// A chart as a picture or a document, and as a spreadsheet with a native chart.
//
// Each function returns the file's bytes. The settlement axis points down where settlements are drawn. Axes, numbers
// and curves run from left to right in every language; the title block follows the language.
#pragma once

#include <string>
#include <vector>

#include "services/host/Charting.h"

class QCustomPlot;

namespace lithmark {

std::string ChartSvg(const ChartArguments& chart);
std::string ChartPng(const ChartArguments& chart);
std::string ChartPdf(const ChartArguments& chart);

// One sheet with the company lines, the project text, the table and a scatter chart over its cells.
std::string ChartXlsx(const ChartArguments& chart);
// One sheet with a table: the head in row 1; cells that are numbers are written as such.
std::string TableXlsx(const std::string& sheetName, const std::vector<std::vector<std::string>>& table);

// Puts the curves, axes and legend into a plot, as all of the above and the chart window show them.
void FillPlot(QCustomPlot& plot, const ChartArguments& chart);

}  // namespace lithmark
