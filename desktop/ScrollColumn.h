// ScrollColumn: a column that is as large as what it holds where there is room, and scrolls up and down where there is
// not.
#pragma once

#include <QScrollArea>

namespace lithmark {

class ScrollColumn : public QScrollArea {
  public:
    ScrollColumn(QWidget* content, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace lithmark
