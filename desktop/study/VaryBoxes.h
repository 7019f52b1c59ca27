// VaryBoxes: the field that a line of a study varies, and its values: from, to, how many and in which steps, or a list.
#pragma once

#include <QWidget>
#include <functional>

#include "study/window/StudyQuestion.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace lithmark {

class VaryBoxes : public QWidget {
  public:
    // Shows and changes the line of a question, 0 or 1.
    VaryBoxes(StudyQuestion& question, int line, std::function<void()> changed, QWidget* parent);

    // What the question holds.
    void Show();

  private:
    void Choose();
    void Read();
    void ShowLines();

    VaryLine& Line() { return question_.Vary[static_cast<std::size_t>(line_)]; }

    StudyQuestion& question_;
    const int line_;
    const std::function<void()> changed_;
    QComboBox *field_, *steps_;
    QLineEdit *from_, *to_, *count_, *list_;
    QLabel *unit_, *fromLabel_, *toLabel_, *countLabel_, *listLabel_, *stepsLabel_;
};

}  // namespace lithmark
