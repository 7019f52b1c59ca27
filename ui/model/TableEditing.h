// TableEditing: a table of numbers while it is edited: cells as texts, one check for typing, paste, undo and OK, rows
// that come, go and move, blocks to and from a spreadsheet, and undo, one step for each command.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "services/host/TableEditor.h"

namespace lithmark {

class TableEditing {
  public:
    struct Place {
        int Row, Column;  // from 0
    };

    explicit TableEditing(TableEdit table);

    int Rows() const noexcept { return static_cast<int>(cells_.size()); }
    int Columns() const noexcept { return static_cast<int>(table_.Columns.size()); }
    const std::string& Cell(int row, int column) const { return At(row, column).Text; }
    // The value with all its digits, in the decimal sign in force; the cell's text once the user has changed it.
    std::string AllDigits(int row, int column) const;
    // The cell shows fewer digits than its value has.
    bool HidesDigits(int row, int column) const { return AllDigits(row, column) != Cell(row, column); }
    // The number of a cell; nothing when it holds none.
    std::optional<double> Number(int row, int column) const;
    // Why a cell cannot be taken: "Time: a whole number from 1 to 32000"; nothing when it can.
    std::optional<std::string> Fault(int row, int column) const;
    // The first of all, row by row.
    std::optional<Place> FirstFault() const;

    void SetCell(int row, int column, const std::string& text);
    // Rows of texts behind the present ones, or in their place; at least one.
    void AppendRows(const std::vector<std::vector<std::string>>& rows, bool replace);
    // A new row ahead of `row`, with the former row's time plus one where the first column counts, and zeros.
    void InsertRow(int row);
    // A table keeps one row at least.
    void DeleteRows(int first, int last);
    // Moves rows by one up or down, as far as there is room; true when they moved.
    bool MoveRows(int first, int last, int by);

    // The cells of a block with all their digits, columns parted by tabs, rows by line ends.
    std::string Copied(int firstRow, int firstColumn, int lastRow, int lastColumn) const;
    // Puts a block of a spreadsheet (tabs, or semicolons) at a cell; rows that are missing are added. The decimal sign
    // is found from the whole block, a head without numbers is left out. Returns what was pasted, in words; nothing,
    // and nothing changed, where the text is empty.
    std::string Paste(int row, int column, const std::string& text);

    bool CanUndo() const noexcept { return !undo_.empty(); }
    bool CanRedo() const noexcept { return !redo_.empty(); }
    void Undo();
    void Redo();

    // The rows as they are shown.
    std::vector<std::vector<std::string>> Texts() const;
    // The title of a column, the first line of its head.
    std::string Title(int column) const;

  private:
    struct CellState {
        std::string Text, Digits;  // Digits "." as decimal point; empty once the user has typed
    };
    using Cells = std::vector<std::vector<CellState>>;

    const CellState& At(int row, int column) const;
    void Remember();
    std::vector<CellState> NewRow(int row) const;

    TableEdit table_;
    Cells cells_;
    std::vector<Cells> undo_, redo_;
};

}  // namespace lithmark
