#include "ui/model/UnsavedTable.h"

#include "base/Failure.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark {

namespace {

std::string Project() {
    return Session.DataDir + Session.ProjectName;
}

// The cells' texts stand in the units and the language of the heads.
std::string ShownAs(const TableEdit& table) {
    std::string shown(1, SharedServices().DecimalSign);
    for (const TableEdit::Column& column : table.Columns) shown += '\n' + column.Head;
    return shown;
}

// A cell for each pair, called by its column: a row begins with column 0.
StoredDraft::Pairs CellsOf(const TableTexts& rows) {
    StoredDraft::Pairs cells;
    for (const auto& row : rows)
        for (std::size_t column = 0; column < row.size(); ++column)
            cells.emplace_back(std::to_string(column), row[column]);
    return cells;
}

// Nothing where the cells are no rows of so many columns.
TableTexts RowsOf(const StoredDraft::Pairs& cells, std::size_t columns) {
    TableTexts rows;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::size_t column = i % columns;
        if (cells[i].first != std::to_string(column)) return {};
        if (column == 0) rows.emplace_back();
        rows.back().push_back(cells[i].second);
    }
    if (!rows.empty() && rows.back().size() != columns) return {};
    return rows;
}

// The digits behind cells that are as they were opened.
TableTexts DigitsOf(const TableTexts& rows, const TableEdit& opened) {
    TableTexts digits;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        digits.emplace_back(rows[r].size());
        if (r >= opened.Rows.size() || r >= opened.Digits.size()) continue;
        for (std::size_t c = 0; c < rows[r].size(); ++c)
            if (rows[r][c] == opened.Rows[r].at(c)) digits[r][c] = opened.Digits[r].at(c);
    }
    return digits;
}

}  // namespace

std::optional<KeptTable> KeptRows(const TableEdit& table) {
    const auto draft = ReadDraft(DraftFolder(), Project(), table.Title);
    if (!draft || draft->Shown != ShownAs(table) || table.Columns.empty()) return std::nullopt;
    return KeptTable{RowsOf(draft->Texts, table.Columns.size()), draft->When};
}

void OfferUnsavedRows(TableEdit& table) {
    const auto kept = KeptRows(table);
    if (!kept) return;
    const bool wanted = !kept->Rows.empty() && kept->Rows != table.Rows &&
                        CurrentHost().AskYesNo(table.Title, Text(906550_text, {{"|1", kept->When}}));
    if (!wanted) return DropUnsavedRows(table);
    table.Digits = DigitsOf(kept->Rows, table);
    table.Rows = kept->Rows;
}

void KeepRows(const TableEdit& table, const TableTexts& rows) {
    if (DraftFolder().empty()) return;
    try {
        WriteDraft(DraftFolder(),
                   {Project(), table.Title, ShownAs(table), TextTools().LongDateOfToday(), CellsOf(rows), {}});
    } catch (const Failure&) {
        // As with all unsaved input: the user is typing.
    }
}

void DropUnsavedRows(const TableEdit& table) {
    RemoveDraft(DraftFolder(), Project(), table.Title);
}

}  // namespace lithmark
