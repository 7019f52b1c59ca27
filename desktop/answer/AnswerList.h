// AnswerList: the values of an answer, a line each: symbol, value, and where one is kept the kept value and the change.
#pragma once

#include <QListWidget>

#include "ui/answer/Answer.h"

namespace lithmark {

// How the lines stand, in logical pixels from the side where the language begins.
struct AnswerColumns {
    int Symbol = 0, Now = 0, Kept = 0, Change = 0, Unit = 0;  // widths; those of what is not shown are 0
};

class AnswerList : public QListWidget {
  public:
    explicit AnswerList(QWidget* parent);

    // `kept` may be null. Values that are not of the present input stand in quiet ink. `all` shows what is not main
    // too.
    void ShowAnswer(const Answer* answer, const Answer* kept, bool present, bool all);
    const AnswerColumns& Columns() const noexcept { return columns_; }
    // The lines are of the present input; without lines there is nothing that could be of another.
    bool Present() const noexcept { return present_ || count() == 0; }
    // "σ z, 63.5 kN/m²; ..."
    QString Words() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void FitColumns();
    void PlaceHead();

    QWidget* head_;
    AnswerColumns columns_;
    bool present_ = true;
};

}  // namespace lithmark
