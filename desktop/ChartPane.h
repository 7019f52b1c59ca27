// ChartPane: curves with the boxes that show and hide them above, and what is read off them below.
#pragma once

#include <QWidget>
#include <vector>

#include "services/host/Charting.h"

class QBoxLayout;
class QCheckBox;
class QLabel;

namespace lithmark {

class ChartView;

class ChartPane : public QWidget {
  public:
    // Where the marks and their difference stand: beside the plot, or in a line below it.
    enum class Marks { Beside, Below };
    static constexpr int kLegendRoom = 800;
    // `legendRoom`: how wide a row of boxes may become. On a small screen boxes of many rows stand beside the plot.
    ChartPane(const ChartArguments& chart, QWidget* parent, int legendRoom = kLegendRoom, Marks marks = Marks::Below);

    ChartView& Plot() noexcept { return *plot_; }
    // Another chart in place of this one. Curves of the same names stay hidden.
    void ShowChart(const ChartArguments& chart);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void BuildLegend(const ChartArguments& chart);
    // The boxes bear what their curves look like.
    void ShowSamples();
    void ShowReading();
    // As wide as the longest mark, so that the plot keeps its width.
    int MarksWidth() const;

    const int legendRoom_;
    const Marks marksAt_;
    ChartView* plot_ = nullptr;
    QLabel *values_ = nullptr, *marks_ = nullptr;
    QBoxLayout *column_, *drawn_;
    QWidget* legend_ = nullptr;
    std::vector<QCheckBox*> boxes_;
};

}  // namespace lithmark
