// Asks for a name and writes a chart in the kind of its ending.
#pragma once

#include "render/ChartDocument.h"

class QWidget;

namespace lithmark {

// PDF, PNG, SVG, spreadsheet, comma-separated values.
void SaveChart(QWidget* window, const ChartArguments& chart, const ChartLook& look);

}  // namespace lithmark
