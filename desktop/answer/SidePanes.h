// SidePanes: the drawing and the answer of a problem, beside its fields: next to each other where there is room, below
// each other where there is height, and else as two tabs. A hidden answer leaves a button that brings it back.
#pragma once

#include <QWidget>
#include <functional>

class QTabBar;
class QToolButton;

namespace lithmark {

class SidePanes : public QWidget {
  public:
    enum class Way { Beside, Below, Tabs };

    // `room`: the width that the panes may ask for.
    SidePanes(std::function<int()> room, QWidget* parent);
    // Takes both, once. The drawing is hidden and shown by whoever made it.
    void Hold(QWidget* drawing, QWidget* answer);

    void ShowAnswer(bool shown);
    bool AnswerShown() const noexcept { return answerShown_; }
    // How they stand, or would if both were shown.
    Way Stand() const { return WayIn(size()); }
    // Brings the answer to the front where it is a tab.
    void Raise();

    std::function<void()> OnShowAnswer;  // the button of a hidden answer

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool DrawingShown() const;
    static Way WayIn(const QSize& size);
    void Arrange();
    void Place(QWidget& pane, const QRect& place);

    QWidget *drawing_ = nullptr, *drawingPane_, *answer_ = nullptr;
    QTabBar* tabs_;
    QToolButton* back_;
    std::function<int()> room_;
    bool answerShown_ = true;
};

}  // namespace lithmark
