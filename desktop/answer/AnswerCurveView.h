// AnswerCurveView: the curves of an answer as small figures, and dashed those of a kept one. Not mirrored in any
// language.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/answer/Answer.h"

class QPainter;

namespace lithmark {

class AnswerCurveView : public QWidget {
  public:
    explicit AnswerCurveView(QWidget* parent);

    // `present`: they belong to the present input.
    void Show(const std::vector<AnswerCurve>& curves, const std::vector<AnswerCurve>& kept, bool present);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // The first curves, beside or below each other; false, and nothing painted, where one has no room.
    bool PaintFigures(QPainter& painter, std::size_t count, bool beside) const;

    std::vector<AnswerCurve> curves_, kept_;
    bool present_ = true;
};

}  // namespace lithmark
