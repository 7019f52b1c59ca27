// The contour plot or the field of a raft and its legend in a window: drawn as sharply as the screen is, with the value
// under the cursor and, in the field, a section that is laid by dragging. The arrows walk through the plot, A and B set
// the ends of the section where one stands.
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

    // The place under the cursor, or that is walked to, in metres, and that it has left the plot.
    std::function<void(double x, double y)> Over;
    std::function<void()> Left;
    // The section was laid anew.
    std::function<void()> SectionLaid;
    // The keys have led to the place that is told.
    bool Walks() const noexcept { return walked_.has_value(); }
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
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // The plot is square, whatever room it has.
    QRect Area() const;
    std::optional<FieldPoint> PlaceAt(const QPointF& at) const;
    void Draw();
    void DrawCross(QPainter& painter) const;
    bool Walk(int key);
    bool SetEnd(bool first);
    void Lay(const FieldLine& section);

    frmContour& form_;
    const Shows shows_;
    QImage image_;
    int drawing_ = 0;
    std::optional<FieldPoint> sectionFrom_, walked_;
};

}  // namespace lithmark
