// FieldChartView: a value over two quantities in a window: its field, and below it the value under the cursor or at the
// place that the arrow keys go to.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "contour/FieldChart.h"

class QCPItemTracer;
class QCustomPlot;
class QLabel;

namespace lithmark {

class FieldChartView : public QWidget {
  public:
    explicit FieldChartView(QWidget* parent);

    // What is under a place, in words.
    using Under = std::function<std::string(const FieldPoint&)>;
    // Nothing empties the view. `words` tells of all of it.
    void Show(std::optional<FieldChart> chart, const std::string& words, Under under);
    const std::optional<FieldChart>& Chart() const noexcept { return chart_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Draw();
    void FitTitles();
    void GoTo(const FieldPoint& place);
    void Leave();
    // By the arrow keys; true where it was one.
    bool Walk(int key);

    QCustomPlot* plot_;
    QCPItemTracer* cross_;
    QLabel* under_;
    std::optional<FieldChart> chart_;
    std::optional<FieldPoint> place_;
    std::string words_;
    Under wordsUnder_;
};

}  // namespace lithmark
