// Spreadsheets: a table, and for a chart a native scatter chart over it.
#include <algorithm>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "contour/CurveSets.h"
#include "render/ChartDocument.h"
#include "render/Workbook.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kCellDecimals = 4;

void WriteCell(Workbook& workbook, lxw_worksheet* sheet, lxw_row_t row, lxw_col_t col, const std::string& cell,
               char decimalSign, lxw_format* format) {
    if (const auto number = ParseNumber(cell, decimalSign))
        worksheet_write_number(sheet, row, col, *number, format);
    else
        workbook.WriteText(sheet, row, col, cell);
}

// The cells of a chart's column that hold numbers.
std::vector<std::string> NumbersOf(const ChartArguments& chart, int column) {
    std::vector<std::string> numbers;
    for (int r = 1; r <= chart.LastRow; ++r)
        if (ParseNumber(chart.Cells(r, column), SharedServices().DecimalSign))
            numbers.push_back(chart.Cells(r, column));
    return numbers;
}

void AddScatterChart(Workbook& workbook, lxw_worksheet* sheet, const std::string& sheetName,
                     const ChartArguments& arguments, lxw_row_t firstRow, lxw_row_t lastRow) {
    lxw_chart* chart = workbook_add_chart(workbook.Book(), LXW_CHART_SCATTER_STRAIGHT_WITH_MARKERS);
    for (int i = 1; i <= arguments.Curves; ++i) {
        lxw_chart_series* series = chart_add_series(chart, nullptr, nullptr);
        chart_series_set_categories(series, sheetName.c_str(), firstRow, 0, lastRow, 0);
        const auto column = static_cast<lxw_col_t>(i);
        chart_series_set_values(series, sheetName.c_str(), firstRow, column, lastRow, column);
        chart_series_set_name(series, PrintableText(arguments.Legends(i)).c_str());
        const LineStyle style = arguments.LineStyles(i);
        if (style == LineStyle::Points) {
            lxw_chart_line line = {};
            line.none = LXW_TRUE;
            chart_series_set_line(series, &line);
        }
        chart_series_set_marker_type(
            series, style == LineStyle::LinesNoMarkers ? LXW_CHART_MARKER_NONE : LXW_CHART_MARKER_CIRCLE);
    }
    chart_title_set_name(chart, PrintableText(arguments.ChartTitle).c_str());
    chart_axis_set_name(chart->x_axis, PrintableText(arguments.XTitle).c_str());
    chart_axis_set_name(chart->y_axis, PrintableText(arguments.YTitle).c_str());
    chart_axis_set_min(chart->x_axis, arguments.XStart);
    chart_axis_set_max(chart->x_axis, arguments.XEnd);
    if (arguments.SettlementsDown && TurnOf(arguments) == ChartTurn::Settlements) chart_axis_set_reverse(chart->y_axis);
    chart_legend_set_position(chart, LXW_CHART_LEGEND_BOTTOM);
    lxw_chart_options size = {};
    size.x_scale = 1.6;
    size.y_scale = 1.6;
    worksheet_insert_chart_opt(sheet, firstRow, static_cast<lxw_col_t>(arguments.LastColumn + 1), chart, &size);
}

}  // namespace

std::string ChartXlsx(const ChartArguments& chart) {
    Workbook workbook;
    const std::string sheetName = "Lithmark";
    lxw_worksheet* sheet = workbook.AddSheet(sheetName, Workbook::Printed::OnOnePage);
    lxw_row_t row = 0;
    const auto text = [&](const std::string& line, lxw_format* format) {
        if (!line.empty()) workbook.WriteText(sheet, row++, 0, line, format);
    };
    text(chart.CompanyLine1, workbook.Bold);
    text(chart.CompanyLine2, workbook.Bold);
    for (const std::string& line : Split(chart.ProjectText, '\n')) text(line, nullptr);
    ++row;
    text(chart.TableTitle, workbook.Bold);
    std::vector<std::size_t> widest;
    const lxw_row_t firstRow = row + 1;
    for (int c = 1; c <= chart.LastColumn; ++c) {
        const std::vector<std::string> numbers = NumbersOf(chart, c);
        // A number that the table has with all its digits is shown with as many as one reads.
        const int decimals = std::min(kCellDecimals, DecimalsOf(numbers, SharedServices().DecimalSign));
        lxw_format* const format = workbook.Decimals(decimals);
        widest.push_back(0);
        for (int r = 1; r <= chart.LastRow; ++r) {
            widest.back() = std::max(widest.back(), CharacterCount(chart.Cells(r, c)));
            WriteCell(workbook, sheet, firstRow + static_cast<lxw_row_t>(r - 1), static_cast<lxw_col_t>(c - 1),
                      chart.Cells(r, c), SharedServices().DecimalSign, format);
        }
    }
    workbook.WriteHead(sheet, row, ColumnNames(chart), widest);
    AddScatterChart(workbook, sheet, sheetName, chart, firstRow, firstRow + static_cast<lxw_row_t>(chart.LastRow - 1));
    return workbook.Bytes();
}

std::string TableXlsx(const std::string& sheetName, const std::vector<std::vector<std::string>>& table) {
    Workbook workbook;
    lxw_worksheet* sheet = workbook.AddSheet(sheetName);
    if (table.empty()) return workbook.Bytes();
    std::vector<std::size_t> widest(table.front().size(), 0);
    for (std::size_t r = 1; r < table.size(); ++r)
        for (std::size_t c = 0; c < table[r].size(); ++c) {
            if (c < widest.size()) widest[c] = std::max(widest[c], CharacterCount(table[r][c]));
            WriteCell(workbook, sheet, static_cast<lxw_row_t>(r), static_cast<lxw_col_t>(c), table[r][c], '.', nullptr);
        }
    workbook.WriteHead(sheet, 0, table.front(), widest);
    return workbook.Bytes();
}

}  // namespace lithmark
