// TableEditorDialog: a table of numbers to be edited, row by row, beside a small chart that follows them.
#pragma once

#include <QDialog>
#include <QTimer>

#include "ui/model/TableEditing.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace lithmark {

class RowsChart;

class TableEditorDialog : public QDialog {
  public:
    TableEditorDialog(TableEdit& table, QWidget* parent);
    // True when the user confirmed; the table then holds what was typed.
    bool Run();

    void accept() override;
    // What was typed is kept when the window is closed too.
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Selection {
        int FirstRow, FirstColumn, LastRow, LastColumn;
    };
    Selection Selected() const;

    QWidget* Buttons();
    // The chart beside the rows, on a small screen behind a tab.
    QWidget* RowsAndChart();
    void BindKeys();
    // The grid as the rows are, and what follows from them: marks, reason, chart, buttons.
    void ShowRows();
    void ShowState();
    void MarkCell(int row, int column);
    QString InWords(int row, int column) const;
    void Typed(int row, int column);
    // Runs a command on the rows, shows them, and selects a cell.
    template <typename Command>
    void Change(Command&& command, int row, int column);
    void MoveRows(int by);
    void Copy();
    void Paste();

    TableEdit& table_;
    TableEditing rows_;
    QTimer keep_;
    QTableWidget* grid_;
    RowsChart* chart_;
    QLabel* note_;
    QPushButton *ok_ = nullptr, *undo_ = nullptr, *redo_ = nullptr, *delete_ = nullptr, *up_ = nullptr,
                *down_ = nullptr;
    std::string pasted_;
    bool showing_ = false;
};

}  // namespace lithmark
