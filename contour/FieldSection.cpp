#include "contour/FieldSection.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "contour/AxisTicks.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

FieldLine MiddleLine(const BasContour& plot) {
    double left = plot.CtrX(1), right = left, low = plot.CtrY(1), high = low;
    for (int i = 2; i <= plot.NodeCount; ++i) {
        left = std::min<double>(left, plot.CtrX(i));
        right = std::max<double>(right, plot.CtrX(i));
        low = std::min<double>(low, plot.CtrY(i));
        high = std::max<double>(high, plot.CtrY(i));
    }
    const double middle = 0.5 * (low + high);
    return {{left, middle}, {right, middle}};
}

std::optional<FieldLine> ParseFieldLine(const std::string& text) {
    std::vector<double> numbers;
    for (const std::string& part : Split(text, ',')) {
        const auto number = ParseNumber(part);
        if (!number) return std::nullopt;
        numbers.push_back(*number);
    }
    if (numbers.size() != 4) return std::nullopt;
    const FieldLine line{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
    if (line.From == line.To) return std::nullopt;
    return line;
}

std::string FieldUnit() {
    return PressureContoursRequested() ? LabelOf(Unit::Pressure) : Session.Len2Label;
}

std::string FieldTitle() {
    const bool pressure = PressureContoursRequested();
    return Text(pressure ? 90098_text : ProblemInForce().RaftSettlement) + (pressure ? " q " : " s ") + FieldUnit();
}

ChartArguments SectionChart(const FieldPlot& field, const FieldLine& line) {
    const auto points = field.Section(line);
    const int rows = static_cast<int>(points.size());
    const std::vector<std::string> heads = {Text(910025_text) + " d " + Session.Len1Label, FieldTitle()};
    ChartArguments chart;
    chart.Curves = 1;
    chart.LastColumn = 2;
    chart.LastRow = rows;
    chart.XTitle = heads[0];
    chart.YTitle = heads[1];
    chart.ChartTitle = Text(910022_text);
    chart.Legends.Redim(0, 1);
    chart.Legends(1) = heads[1];
    chart.LineStyles.Redim(0, 1);
    chart.LineStyles(1) = LineStyle::LinesNoMarkers;
    chart.Header.Redim(0, 0, 0, 2);
    for (int c = 1; c <= 2; ++c) chart.Header(0, c) = heads[static_cast<std::size_t>(c - 1)];
    chart.Cells.Redim(0, rows, 0, 2);
    if (rows == 0) return chart;
    const double length = points.back().Distance * Session.Len1Factor;
    const int places = length > 0 ? DecimalsOf(RoundStep(1e-4 * length)) : 0;
    const double range = field.Greatest() - field.Least();
    const int digits =
        DecimalsOf(RoundStep(1e-4 * (field.Even() ? std::max(std::abs(field.Greatest()), 1e-6) : range)));
    for (int row = 1; row <= rows; ++row) {
        const auto& point = points[static_cast<std::size_t>(row - 1)];
        chart.Cells(row, 1) = TickText(point.Distance * Session.Len1Factor, places, SharedServices().DecimalSign);
        chart.Cells(row, 2) = TickText(point.Value, digits, SharedServices().DecimalSign);
    }
    return chart;
}

}  // namespace lithmark
