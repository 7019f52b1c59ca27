// A value over two quantities as a picture or a document, and in a plot of a window.
#pragma once

#include <string>

#include "contour/FieldChart.h"
#include "render/PlotPage.h"

class QCustomPlot;

namespace lithmark {

struct ChartInks;

// Puts the field, axes and the scale of its classes into a plot in place of what it holds. The field lies on a light
// sheet in every window.
void FillFieldChart(QCustomPlot& plot, const FieldChart& chart, const ChartInks& inks);

// The file's bytes. Axes run from left to right in every language.
std::string FieldChartFile(PictureKind kind, const FieldChart& chart);

}  // namespace lithmark
