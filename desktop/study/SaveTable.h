// What the windows of studies save: tables and tornados, each under a name that is asked for.
#pragma once

#include <string>
#include <vector>

#include "render/TornadoDocument.h"
#include "render/figures/FieldChartDocument.h"

class QWidget;

namespace lithmark {

// The bytes of comma-separated values as they stand.
void SaveCsvFile(QWidget& window, const std::string& csv);
// A table with its head as a spreadsheet.
void SaveSheetFile(QWidget& window, const std::vector<std::vector<std::string>>& table);
// PDF, PNG or SVG.
void SaveFieldChartFile(QWidget& window, const FieldChart& chart);
void SaveTornadoFile(QWidget& window, const TornadoPicture& picture);

}  // namespace lithmark
