#include "render/StepTablesXlsx.h"

#include <algorithm>

#include "base/Utf8.h"
#include "render/Workbook.h"

namespace lithmark {

namespace {

// "SUM(C3:C22)" of a column, rows counted from 0.
std::string SumFormula(lxw_row_t first, lxw_row_t last, lxw_col_t column) {
    char begin[LXW_MAX_CELL_NAME_LENGTH], end[LXW_MAX_CELL_NAME_LENGTH];
    lxw_rowcol_to_cell(begin, first, column);
    lxw_rowcol_to_cell(end, last, column);
    return std::string("=SUM(") + begin + ":" + end + ")";
}

class SheetOfSteps {
  public:
    SheetOfSteps(Workbook& workbook, lxw_worksheet* sheet, const StepTable& table)
        : workbook_(workbook), sheet_(sheet), table_(table) {
        for (std::size_t c = 0; c < table.Columns.size(); ++c) decimals_.push_back(DecimalsOf(table, c));
    }

    void Write() {
        workbook_.WriteText(sheet_, 0, 0, table_.Title, workbook_.Bold);
        std::vector<std::string> heads;
        std::vector<std::size_t> widest;
        for (const StepColumn& column : table_.Columns) {
            heads.push_back(column.Head());
            widest.push_back(kNumberWidth);
        }
        for (const auto& cells : table_.Rows)
            for (std::size_t c = 0; c < cells.size(); ++c)
                widest[c] = std::max(widest[c], CharacterCount(cells[c].Word));
        for (const StepSum& sum : table_.Sums) widest[0] = std::max(widest[0], CharacterCount(sum.Label));
        workbook_.WriteHead(sheet_, 1, heads, widest);
        const lxw_row_t first = 2;
        lxw_row_t row = first;
        for (const auto& cells : table_.Rows) {
            for (std::size_t c = 0; c < cells.size(); ++c) WriteCell(row, c, cells[c], false);
            ++row;
        }
        const lxw_row_t last = row - 1;
        for (const StepSum& sum : table_.Sums) WriteSum(row++, first, last, sum);
        for (const std::string& note : table_.Notes) workbook_.WriteText(sheet_, ++row, 0, note);
    }

  private:
    static constexpr std::size_t kNumberWidth = 11;

    void WriteCell(lxw_row_t row, std::size_t column, const StepCell& cell, bool bold) {
        const auto at = static_cast<lxw_col_t>(column);
        if (cell.Number)
            worksheet_write_number(sheet_, row, at, *cell.Number, workbook_.Decimals(decimals_[column], bold));
        else if (!cell.Word.empty())
            workbook_.WriteText(sheet_, row, at, cell.Word, bold ? workbook_.Bold : nullptr);
    }

    void WriteSum(lxw_row_t row, lxw_row_t first, lxw_row_t last, const StepSum& sum) {
        workbook_.WriteText(sheet_, row, 0, sum.Label, workbook_.Bold);
        for (std::size_t c = 1; c <= sum.Cells.size(); ++c) {
            const StepCell& cell = sum.Cells[c - 1];
            const auto column = static_cast<lxw_col_t>(c);
            if (sum.Kind == StepSum::Of::Column && cell.Number)
                worksheet_write_formula_num(sheet_, row, column, SumFormula(first, last, column).c_str(),
                                            workbook_.Decimals(decimals_[c], true), *cell.Number);
            else
                WriteCell(row, c, cell, true);
        }
    }

    Workbook& workbook_;
    lxw_worksheet* const sheet_;
    const StepTable& table_;
    std::vector<int> decimals_;
};

}  // namespace

std::string StepTablesXlsx(const std::vector<StepTable>& tables) {
    Workbook workbook;
    int number = 0;
    // Numbered, since two tables may have one title.
    for (const StepTable& table : tables)
        SheetOfSteps(workbook, workbook.AddSheet(std::to_string(++number) + " " + table.Title), table).Write();
    if (tables.empty()) workbook.AddSheet("Lithmark");
    return workbook.Bytes();
}

}  // namespace lithmark
