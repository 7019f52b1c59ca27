// RowsChart: the rows of a table as points over the first column, joined in their order. It follows the rows; a row
// without numbers is left out.
#pragma once

#include <QPointF>
#include <QWidget>
#include <vector>

namespace lithmark {

class RowsChart : public QWidget {
  public:
    explicit RowsChart(QWidget* parent);
    QSize sizeHint() const override { return {300, 260}; }

    // `xTitle` and `yTitle` stand at the axes.
    void Show(std::vector<QPointF> points, const QString& xTitle, const QString& yTitle);
    const std::vector<QPointF>& Points() const noexcept { return points_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QPointF> points_;
    QString xTitle_, yTitle_;
};

}  // namespace lithmark
