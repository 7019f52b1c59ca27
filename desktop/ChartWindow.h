// ChartWindow: the curves of a problem on the screen, what can be read off them, and their ways out.
#pragma once

#include <QDialog>

#include "services/host/Charting.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace lithmark {

class ChartView;

class ChartWindow : public QDialog {
  public:
    ChartWindow(const ChartArguments& chart, QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QBoxLayout* LegendRow();
    // Boxes, plot, what can be read off it, and buttons: under each other, on a small screen the buttons at the side.
    void Arrange(QBoxLayout& window);
    void AddWays(QBoxLayout& row);
    void AddTurn(QBoxLayout& row);
    // As wide as the longest mark, so that the plot keeps its width.
    int MarksWidth() const;
    QPushButton* AddButton(QBoxLayout& row, const std::string& caption, const char* name, void (ChartWindow::*slot)());
    QPushButton* OkButton();
    void ShowReading();

    void CopyPicture();
    void CopyTable();
    void Print();
    // Asks for a name and writes the chart in the kind of its ending.
    void Save();
    void Original();
    void Contours();

    const ChartArguments chart_;
    const bool small_;
    ChartView* plot_;
    QLabel *values_, *marks_;
};

}  // namespace lithmark
