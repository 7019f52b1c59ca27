#include "contour/ChartTable.h"

#include <algorithm>
#include <functional>

#include "base/CsvCell.h"
#include "contour/CurveSets.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

std::string Table(const ChartArguments& chart, const char* parting, const char* lineEnd,
                  const std::function<std::string(const std::string&)>& head,
                  const std::function<std::string(const std::string&)>& cell) {
    std::string text;
    for (const std::string& name : ColumnNames(chart)) text += (text.empty() ? "" : parting) + head(name);
    text += lineEnd;
    for (int r = 1; r <= chart.LastRow; ++r) {
        for (int c = 1; c <= chart.LastColumn; ++c) text += (c > 1 ? parting : "") + cell(chart.Cells(r, c));
        text += lineEnd;
    }
    return text;
}

}  // namespace

std::string ChartCsv(const ChartArguments& chart) {
    const auto number = [sign = SharedServices().DecimalSign](std::string cell) {
        std::replace(cell.begin(), cell.end(), sign, '.');
        return CsvWords(cell);
    };
    return Table(
        chart, ",", "\r\n", [](const std::string& head) { return CsvWords(head); }, number);
}

std::string ChartTabs(const ChartArguments& chart) {
    const auto asItStands = [](const std::string& cell) { return cell; };
    return Table(chart, "\t", "\n", asItStands, asItStands);
}

}  // namespace lithmark
