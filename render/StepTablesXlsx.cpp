#include "render/StepTablesXlsx.h"

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

void WriteCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const StepCell& cell, lxw_format* format) {
    if (cell.Number)
        worksheet_write_number(sheet, row, column, *cell.Number, format);
    else if (!cell.Word.empty())
        WriteText(sheet, row, column, cell.Word, format);
}

void WriteTable(Workbook& workbook, lxw_worksheet* sheet, const StepTable& table) {
    WriteText(sheet, 0, 0, table.Title, workbook.Bold);
    worksheet_set_column(sheet, 0, static_cast<lxw_col_t>(table.Columns.size() - 1), 16, nullptr);
    lxw_col_t column = 0;
    for (const StepColumn& head : table.Columns) WriteText(sheet, 1, column++, head.Head(), workbook.Head);
    const lxw_row_t first = 2;
    lxw_row_t row = first;
    for (const auto& cells : table.Rows) {
        column = 0;
        for (const StepCell& cell : cells) WriteCell(sheet, row, column++, cell, nullptr);
        ++row;
    }
    const lxw_row_t last = row - 1;
    for (const StepSum& sum : table.Sums) {
        WriteText(sheet, row, 0, sum.Label, workbook.Bold);
        column = 1;
        for (const StepCell& cell : sum.Cells) {
            if (sum.Kind == StepSum::Of::Column && cell.Number)
                worksheet_write_formula_num(sheet, row, column, SumFormula(first, last, column).c_str(), workbook.Bold,
                                            *cell.Number);
            else
                WriteCell(sheet, row, column, cell, workbook.Bold);
            ++column;
        }
        ++row;
    }
    for (const std::string& note : table.Notes) WriteText(sheet, ++row, 0, note, nullptr);
    worksheet_freeze_panes(sheet, first, 0);
}

}  // namespace

std::string StepTablesXlsx(const std::vector<StepTable>& tables) {
    Workbook workbook;
    int number = 0;
    // Numbered, since two tables may have one title.
    for (const StepTable& table : tables)
        WriteTable(workbook, workbook.AddSheet(std::to_string(++number) + " " + table.Title), table);
    if (tables.empty()) workbook.AddSheet("Lithmark");
    return workbook.Bytes();
}

}  // namespace lithmark
