// A chart as a picture or a document, and as a spreadsheet with a native chart.
//
// Each function returns the file's bytes. Axes, numbers and curves run from left to right in every language; the title
// block follows the language.
#pragma once

#include <QColor>
#include <QPen>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "contour/ChartReading.h"
#include "services/host/Charting.h"

class QCPAxis;
class QCPPainter;
class QCustomPlot;
class QSize;

namespace lithmark {

// The colours of a plot. Paper and files are light; a window brings its own.
struct ChartInks {
    QColor Ground = 0xFFFFFF, Text = 0x1B2530, Axes = 0x7A8591, Grid = 0xDDE1E6;
    std::array<QColor, 4> Curves = {QColor(0x0068A6), QColor(0xA84800), QColor(0x006E52), QColor(0x84408F)};
};

// What of a chart is looked at, the same on the screen and on paper. That settlements or depths point down says the
// chart's own SettlementsDown.
struct ChartLook {
    struct Range {
        double Lower = 0, Upper = 0;
    };
    std::vector<bool> Hidden;         // a curve each, from the first; those without an entry are shown
    std::optional<Range> Horizontal;  // a part of the axes as they lie on the paper; all of it where there is none
    std::optional<Range> Vertical;
    bool Legend = true;  // above the plot; a window has boxes in its place
    ChartInks Inks;

    bool Shows(int curve) const {
        const auto i = static_cast<std::size_t>(curve - 1);
        return i >= Hidden.size() || !Hidden[i];
    }
};

std::string ChartSvg(const ChartArguments& chart, const ChartLook& look = {});
std::string ChartPng(const ChartArguments& chart, const ChartLook& look = {});
std::string ChartPdf(const ChartArguments& chart, const ChartLook& look = {});
// The page of all three, in units of kChartPage, with title block and plot.
inline constexpr int kChartPageWidth = 1020, kChartPageHeight = 680;
void DrawChartPage(QCPPainter& painter, const ChartArguments& chart, const ChartLook& look);

// One sheet with the company lines, the project text, the table and a scatter chart over its cells.
std::string ChartXlsx(const ChartArguments& chart);
// One sheet with a table: the head in row 1; cells that are numbers are written as such.
std::string TableXlsx(const std::string& sheetName, const std::vector<std::vector<std::string>>& table);

// The plot alone, without the title block, as a figure of a report shows it.
void PaintPlot(QCPPainter& painter, const ChartArguments& chart, const QSize& size, const ChartLook& look = {});

// Puts the curves, axes and legend into an empty plot, as all of the above and the chart window show them.
void FillPlot(QCustomPlot& plot, const ChartArguments& chart, const ChartLook& look = {});
// A title "title symbol unit" that reads in one direction: its words in that of the language, symbol and unit from left
// to right.
QString AxisLabel(const std::string& title);
// The title of an upright axis where the plot is as high as it is long, its symbol and unit alone where it is not.
void FitUprightTitle(QCPAxis& axis, const std::string& title);
// The legend above the plot, where it covers nothing that is drawn; one entry a line if they do not fit side by side.
void PlaceLegend(QCustomPlot& plot, const ChartInks& inks);
// The colour and the dash of a curve, which tell it apart with and without colours.
QPen CurvePen(int curve, const ChartInks& inks);
// An axis with a title, round ticks in the digits of the language, and those colours; `whole` keeps its ticks whole.
void StyleChartAxis(QCPAxis& axis, const std::string& title, const ChartInks& inks, bool whole = false);
// True where the plot has the table's first column on its vertical axis: depths that point down.
bool AxesChanged(const ChartArguments& chart);

}  // namespace lithmark
