#include "report/StepTablesCsv.h"

#include "base/CsvCell.h"
#include "base/NumberText.h"

namespace lithmark {

std::string StepTablesCsv(const std::vector<StepTable>& tables) {
    std::string csv;
    const auto cellText = [](const StepCell& cell) { return cell.Number ? JsonNumber(*cell.Number) : cell.Word; };
    const auto line = [&csv](const std::string& first, auto begin, auto end, const auto& textOf) {
        csv += CsvWords(first);
        for (auto cell = begin; cell != end; ++cell) csv += "," + CsvWords(textOf(*cell));
        csv += "\r\n";
    };
    for (const StepTable& table : tables) {
        if (!csv.empty()) csv += "\r\n";
        csv += CsvWords(table.Title) + "\r\n";
        line(table.Columns.front().Head(), table.Columns.begin() + 1, table.Columns.end(),
             [](const StepColumn& column) { return column.Head(); });
        for (const auto& row : table.Rows) line(cellText(row.front()), row.begin() + 1, row.end(), cellText);
        for (const StepSum& sum : table.Sums) line(sum.Label, sum.Cells.begin(), sum.Cells.end(), cellText);
        for (const std::string& note : table.Notes) csv += CsvWords(note) + "\r\n";
    }
    return csv;
}

}  // namespace lithmark
