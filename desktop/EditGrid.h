// EditGrid: a table of numbers that is edited, row by row, as cells: typed into, with blocks to and from spreadsheets,
// rows that come, go and move, undo. Its owner may have further columns behind, which are read only.
#pragma once

#include <QKeySequence>
#include <QTableWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/model/TableEditing.h"

namespace lithmark {

class EditGrid : public QTableWidget {
  public:
    // The rows outlive the grid.
    EditGrid(TableEditing& rows, QWidget* parent);

    // The rows are other ones, by the user or by ShowRows. The selection is another one.
    std::function<void()> OnRows, OnSelection;
    // What was pasted, in words.
    std::function<void(const std::string&)> OnPasted;

    struct Selection {
        int FirstRow, FirstColumn, LastRow, LastColumn;
    };
    Selection Selected() const;

    // All cells as the rows are.
    void ShowRows();

    void InsertRow();
    void DeleteRows();
    void MoveRows(int by);
    void Undo();
    void Redo();
    void Copy();
    void Paste();
    bool CanDelete() const;
    bool CanMove(int by) const;

    // The buttons of a window that do what keys do in its grid, by their names: they tell the keys.
    static void TellKeys(QWidget& window);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Command {
        const char* Button;  // where a window has one; null for none
        QKeySequence Keys;
        void (EditGrid::*Do)();
    };
    static const std::vector<Command>& Commands();
    void BindKeys();
    void MoveUp() { MoveRows(-1); }
    void MoveDown() { MoveRows(1); }
    void MarkCell(int row, int column);
    QString InWords(int row, int column) const;
    void Typed(int row, int column);
    // Runs a command on the rows, shows them, and selects a cell.
    template <typename Step>
    void Change(Step&& step, int row, int column);

    TableEditing& rows_;
    bool showing_ = false;
};

}  // namespace lithmark
