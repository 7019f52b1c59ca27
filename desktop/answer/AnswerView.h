// AnswerView: the answer beside a problem's fields: how it stands, the values, the notices, the curves.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/answer/CliAnswerWorker.h"
#include "ui/answer/LiveAnswer.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace lithmark {

class AnswerCurveView;
class AnswerList;

class AnswerView : public QWidget {
  public:
    AnswerView(const ProblemForm& form, QWidget* parent);

    LiveAnswer& Model() noexcept { return live_; }
    // What the user did: a key in a box, or with null anything else; the focus has left the boxes.
    void Acted(const Control* typed);
    void Left();
    // F5.
    void Ask();
    // Nobody sees it: nothing is worked out.
    void SetShown(bool shown);

    std::function<void()> OnStudy, OnHide;          // its buttons
    std::function<void(const Control& box)> OnBox;  // the link to the box that stops it

    QSize sizeHint() const override;

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Build();
    void Follow();
    void FollowState();
    void MakeRoomForReason(bool alone);
    void FollowNotices();
    void Speak();
    void ShowNotice(int index);
    void Wait();

    CliAnswerWorker worker_;
    LiveAnswer live_;
    QElapsedTimer clock_;
    QTimer timer_;
    bool shown_ = true, all_ = false;

    QPushButton *keep_, *study_;
    QToolButton* hide_;
    QLabel* state_;
    QLabel* mark_;
    QPushButton *ask_, *more_, *notices_;
    QProgressBar* progress_;
    AnswerList* list_;
    AnswerCurveView* curves_ = nullptr;
};

}  // namespace lithmark
