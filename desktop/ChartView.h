// ChartView: the plot of a chart that the user works in: zoom, pan, the values at the cursor, two marks.
#pragma once

#include <qcustomplot.h>

#include <functional>
#include <memory>
#include <optional>

#include "render/ChartDocument.h"

namespace lithmark {

// The colours of a plot in a window of such a palette, light or dark.
ChartInks WindowInks(const QPalette& palette);

class ChartView : public QCustomPlot {
  public:
    ChartView(const ChartArguments& chart, QWidget* parent);

    // The row at the cursor or the walk, or the marks, are other ones.
    std::function<void()> OnReading;

    // Another chart in place of this one; what was read and marked is gone.
    void ShowChart(const ChartArguments& chart);

    const ChartReading& Reading() const noexcept { return *reading_; }
    std::optional<int> Row() const noexcept { return row_; }
    const std::optional<ChartMark>& A() const noexcept { return a_; }
    const std::optional<ChartMark>& B() const noexcept { return b_; }

    void ShowCurve(int curve, bool on);
    // Settlements or depths downward.
    void Turn(bool down);
    // Larger by more than 1, smaller by less; the whole chart.
    void Zoom(double by);
    void Whole();
    // To the next point on the right (1) or on the left (-1).
    void Walk(int by);
    // A (first) or B at the point that was walked to, or at the one under the cursor.
    void Mark(bool first);

    // What is seen, for paper and files, and with which turn.
    ChartLook Look() const;
    const ChartArguments& Chart() const noexcept { return chart_; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Fill();
    void DrawReading();
    void Told();
    QCPAxis& PlaceAxis() const { return AxesChanged(chart_) ? *yAxis : *xAxis; }
    QCPAxis& ValueAxis() const { return AxesChanged(chart_) ? *xAxis : *yAxis; }
    double PlaceAt(const QPointF& at) const;
    double ValueAt(const QPointF& at) const;
    QPointF Place(const ChartMark& mark) const;
    void MarkAt(const QPointF& at, bool first);

    ChartArguments chart_;
    std::unique_ptr<ChartReading> reading_;
    ChartLook look_;
    std::optional<int> row_;
    std::optional<ChartMark> a_, b_;
    std::optional<QPointF> pressed_;
    bool walked_ = false;
};

}  // namespace lithmark
