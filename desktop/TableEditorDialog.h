// TableEditorDialog: a table of numbers to be edited, row by row.
#pragma once

#include <QDialog>

#include "services/host/TableEditor.h"

class QTableWidget;

namespace lithmark {

class TableEditorDialog : public QDialog {
  public:
    TableEditorDialog(TableEdit& table, QWidget* parent);
    // True when the user confirmed; the table then holds what was typed.
    bool Run();

    void accept() override;

  private:
    void AddRow();
    void DeleteRow();
    // True when every cell holds a number that its column accepts; otherwise the first other one is told and marked.
    bool Check();

    TableEdit& table_;
    QTableWidget* grid_;
};

}  // namespace lithmark
