#include "study/window/ChartColumns.h"

#include <algorithm>
#include <cmath>

#include "contour/CurveSets.h"
#include "core/Session.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

constexpr int kDigits = 5;  // of the numbers that are drawn

}  // namespace

std::string AxisTitle(const std::string& label, const std::string& symbol, const std::string& unit) {
    return label + " " + symbol + " [" + (unit.empty() ? "-" : unit) + "]";
}

ChartArguments ChartOfColumns(const std::string& title, const std::string& xTitle, const std::string& yTitle,
                              const std::vector<ChartColumn>& columns) {
    ChartArguments chart;
    const int curves = static_cast<int>(columns.size()) - 1, rows = static_cast<int>(columns[0].Values.size());
    chart.Curves = curves;
    chart.LastColumn = curves + 1;
    chart.LastRow = rows;
    chart.XTitle = xTitle;
    chart.YTitle = yTitle;
    chart.ChartTitle = chart.TableTitle = title;
    chart.Legends.Redim(0, curves);
    chart.LineStyles.Redim(0, curves);
    chart.Cells.Redim(0, rows, 0, curves + 1);
    chart.Header.Redim(0, 0, 0, curves + 1);
    chart.Header(0, 1) = xTitle;
    for (int c = 0; c <= curves; ++c) {
        const ChartColumn& column = columns[static_cast<std::size_t>(c)];
        for (int r = 0; r < rows; ++r) {
            const double value = column.Values[static_cast<std::size_t>(r)];
            if (!std::isnan(value)) chart.Cells(r + 1, c + 1) = ShortNumber(value, kDigits);
        }
        if (c == 0) continue;
        chart.Legends(c) = chart.Header(0, c + 1) = column.Name;
        chart.LineStyles(c) = column.Style;
    }
    if (rows > 0) {
        const auto [least, greatest] = std::ranges::minmax(columns[0].Values);
        chart.XStart = least;
        chart.XEnd = greatest;
    }
    chart.ProjectText = ProjectTextInForce();
    chart.CompanyLine1 = Session.FirmaLine1;
    chart.CompanyLine2 = Session.FirmaLine2;
    return chart;
}

void AddPoint(std::vector<ChartColumn>& columns, std::size_t column, double x, double y) {
    for (std::size_t c = 0; c < columns.size(); ++c)
        columns[c].Values.push_back(c == 0 ? x : c == column ? y : kEmptyCell);
}

}  // namespace lithmark
