// TornadoTab: which fields move the result how far: of all fields alike, or of those of the study.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "render/TornadoDocument.h"
#include "study/window/StudyAnswerTexts.h"

class QCustomPlot;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace lithmark {

class TornadoTab : public QWidget {
  public:
    TornadoTab(StudyQuestion& question, QWidget* parent);

    std::function<void()> OnChange;

    // Nothing is drawn without bars; `note` stands in their place.
    void ShowBars(const TornadoPicture& picture, const QString& note);
    const TornadoPicture& Picture() const noexcept { return picture_; }
    void Mark(const std::vector<AskFault>& faults);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Read();
    void Draw();

    StudyQuestion& question_;
    QRadioButton *all_, *own_;
    QLineEdit* swing_;
    QCustomPlot* plot_;
    QLabel* note_;
    TornadoPicture picture_;
};

// Of a question's answer; without bars where there are none.
TornadoPicture TornadoPictureOf(const StudyQuestion& question, const std::vector<TornadoBar>& bars, double middle);

}  // namespace lithmark
