// StudyAsk: what a study asks, as boxes in a column: the fields that vary, the random ones, the results, the limit.
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "study/window/StudyQuestion.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QPushButton;

namespace lithmark {

class RandomBoxes;
class VaryBoxes;

class StudyAsk : public QWidget {
  public:
    StudyAsk(StudyQuestion& question, QWidget* parent);

    // The user has changed something; wants the limit to be searched.
    std::function<void()> OnChange, OnFind;

    // Marks the boxes of faults, and no others.
    void Mark(const std::vector<AskFault>& faults);

  private:
    QGroupBox* VaryGroup();
    QGroupBox* RandomGroup();
    QGroupBox* ResultGroup();
    void Changed();
    void ShowLines();
    void ShowLimit();

    StudyQuestion& question_;
    std::array<VaryBoxes*, StudyQuestion::kVaryLines> vary_{};
    QRadioButton *family_ = nullptr, *contour_ = nullptr;
    std::array<RandomBoxes*, StudyQuestion::kRandomLines> random_{};
    QLineEdit *samples_ = nullptr, *limit_ = nullptr, *share_ = nullptr;
    QLabel *samplesLabel_ = nullptr, *limitUnit_ = nullptr, *shareLabel_ = nullptr;
    QComboBox* result_ = nullptr;
    std::vector<QCheckBox*> takes_;
    QPushButton* find_ = nullptr;
};

}  // namespace lithmark
