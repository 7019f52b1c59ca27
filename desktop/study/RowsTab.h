// RowsTab: the rows of a study as a table, as many as one looks through.
#pragma once

#include <QWidget>
#include <vector>

#include "study/window/StudyAnswerTexts.h"

class QLabel;
class QTableWidget;

namespace lithmark {

class RowsTab : public QWidget {
  public:
    explicit RowsTab(QWidget* parent);

    void ShowRows(const StudyQuestion& asked, const StudyTable& table);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Copy();
    void ShowRow(int row, const ShownRows& rows);
    // In inks of light or dark windows.
    void ShowInks();

    QLabel* note_;
    QTableWidget* rows_;
    std::vector<ShownRows::Kind> kinds_;
};

}  // namespace lithmark
