// RowsChart: the rows of a table as points over the first column, joined in their order, or as the stairs of what each
// row puts in force from the step on that ends with it. It follows the rows; a row without numbers is left out.
#pragma once

#include <QPointF>
#include <QWidget>
#include <vector>

namespace lithmark {

class RowsChart : public QWidget {
  public:
    enum class Kind { Line, Stairs };
    RowsChart(Kind kind, QWidget* parent);
    QSize sizeHint() const override { return {300, 260}; }

    // `xTitle` and `yTitle` stand at the axes.
    void Show(std::vector<QPointF> points, const QString& xTitle, const QString& yTitle);
    const std::vector<QPointF>& Points() const noexcept { return points_; }
    // The corners of what is drawn.
    std::vector<QPointF> Drawn() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Kind kind_;
    std::vector<QPointF> points_;
    QString xTitle_, yTitle_;
};

}  // namespace lithmark
