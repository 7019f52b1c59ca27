// TableEditorDialog: a table of numbers to be edited, row by row, beside a small chart that follows them.
#pragma once

#include <QDialog>

#include "desktop/Pause.h"
#include "ui/model/TableEditing.h"

class QLabel;
class QPushButton;

namespace lithmark {

class EditGrid;
class RowsChart;

class TableEditorDialog : public QDialog {
  public:
    TableEditorDialog(TableEdit& table, QWidget* parent);
    // True when the user confirmed; the table then holds what was typed.
    bool Run();

    void accept() override;
    // What was typed is kept when the window is closed too.
    void reject() override;

  private:
    QWidget* Buttons();
    // The chart beside the rows, on a small screen behind a tab.
    QWidget* RowsAndChart();
    // What follows from the rows: reason, chart, buttons.
    void ShowState();

    TableEdit& table_;
    TableEditing rows_;
    Pause keep_;
    EditGrid* grid_;
    RowsChart* chart_;
    QLabel* note_;
    QPushButton *ok_ = nullptr, *undo_ = nullptr, *redo_ = nullptr, *delete_ = nullptr, *up_ = nullptr,
                *down_ = nullptr;
    std::string pasted_;
};

}  // namespace lithmark
