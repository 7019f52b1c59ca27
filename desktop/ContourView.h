// The contour plot and its legend in a window: drawn as sharply as the screen is, and the value under the cursor.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "ui/frmContour.h"

namespace lithmark {

class ContourView : public QWidget {
  public:
    enum class Shows { Plot, Legend };
    ContourView(frmContour& form, Shows shows, QWidget* parent);
    QSize sizeHint() const override;

    // The place under the cursor in metres, and that it has left the plot.
    std::function<void(double x, double y)> Over;
    std::function<void()> Left;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    // The plot is square, whatever room it has.
    QRect Area() const;
    void Draw();

    frmContour& form_;
    const Shows shows_;
    QImage image_;
    int drawing_ = 0;
};

}  // namespace lithmark
