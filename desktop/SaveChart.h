// Asks for a name and writes a chart in the kind of its ending.
#pragma once

#include "render/ChartDocument.h"

class QWidget;

namespace lithmark {

// PDF, PNG and SVG of the chart as it is shown; spreadsheet and comma-separated values of `table`, the same chart in
// the symbols of reports.
void SaveChart(QWidget* window, const ChartArguments& shown, const ChartLook& look, const ChartArguments& table);

}  // namespace lithmark
