// ChartWindow: the curves of a problem on the screen, what can be read off them, and their ways out.
#pragma once

#include <QDialog>

#include "services/host/Charting.h"

class QBoxLayout;
class QPushButton;

namespace lithmark {

class ChartPane;
class ChartView;

class ChartWindow : public QDialog {
  public:
    ChartWindow(const ChartArguments& chart, QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // What is seen and the buttons: under each other, on a small screen beside each other.
    void Arrange(QBoxLayout& window);
    void AddWays(QBoxLayout& row);
    QPushButton* OkButton();
    void AddTurn(QBoxLayout& row);
    QPushButton* AddButton(QBoxLayout& row, const std::string& caption, const char* name, void (ChartWindow::*slot)());

    void CopyPicture();
    void CopyTable();
    void Print();
    // Asks for a name and writes the chart in the kind of its ending.
    void Save();
    void Original();
    void Contours();

    const ChartArguments chart_;
    const bool small_;
    ChartPane* pane_;
    ChartView* plot_;
};

}  // namespace lithmark
