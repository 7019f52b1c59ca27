// FindBar: looks for words in a report: a box, how many places there are and which one is shown, and buttons to the
// next and the former one. What is typed is found at once. Ctrl+F goes to it, F3 and Shift+F3 go on.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace lithmark {

class ReportView;

class FindBar : public QWidget {
  public:
    explicit FindBar(QWidget* window);
    // A report that is made behind the bar, as the Tab key goes.
    void LookIn(ReportView& report) { report_ = &report; }

  private:
    void Go(bool backwards);
    void ShowPlace();

    ReportView* report_ = nullptr;
    QLineEdit* box_;
    QLabel* place_;
};

}  // namespace lithmark
