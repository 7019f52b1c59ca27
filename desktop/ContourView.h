// The contour plot or the field of a raft and its legend in a window: drawn as sharply as the screen is, with the value
// under the cursor and, in the field, a section that is laid by dragging.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>

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
    // The section was laid anew.
    std::function<void()> SectionLaid;
    // The legend as wide as its texts call for.
    void FitLegend();
    // What is shown, for those who hear it.
    void Tell();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    // The plot is square, whatever room it has.
    QRect Area() const;
    std::optional<FieldPoint> PlaceAt(const QPointF& at) const;
    void Draw();

    frmContour& form_;
    const Shows shows_;
    QImage image_;
    int drawing_ = 0;
    std::optional<FieldPoint> sectionFrom_;
};

}  // namespace lithmark
