// RandomBoxes: a random field of a study and its distribution.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "study/window/StudyQuestion.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace lithmark {

class RandomBoxes : public QWidget {
  public:
    // Shows and changes a random line of a question, from 0 on.
    RandomBoxes(StudyQuestion& question, int line, std::function<void()> changed, QWidget* parent);

    void Show();

  private:
    void Choose();
    void ChooseKind();
    void Read();

    RandomLine& Line() { return question_.Random[static_cast<std::size_t>(line_)]; }

    StudyQuestion& question_;
    const int line_;
    const std::function<void()> changed_;
    QComboBox *field_, *kind_;
    QLabel *kindLabel_, *unit_;
    std::array<QLabel*, 3> labels_;
    std::array<QLineEdit*, 3> boxes_;
};

}  // namespace lithmark
