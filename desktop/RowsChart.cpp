#include "desktop/RowsChart.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/PageTools.h"

namespace lithmark {

namespace {

constexpr int kEdge = 8, kLeftRoom = 58, kLineRoom = 20;

// From the least to the greatest value, with 0, so that the axes meet there; never without width.
std::pair<double, double> RangeOf(const std::vector<QPointF>& points, double (QPointF::*of)() const) {
    double least = 0, greatest = 0;
    for (const QPointF& point : points) {
        least = std::min(least, (point.*of)());
        greatest = std::max(greatest, (point.*of)());
    }
    if (greatest == least) greatest = least + 1;
    return {least, greatest};
}

QString NumberAt(double value) {
    return PlainNumber(value);
}

}  // namespace

RowsChart::RowsChart(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("rowsChart"));
    setLayoutDirection(Qt::LeftToRight);
    setMinimumSize(200, 160);
}

void RowsChart::Show(std::vector<QPointF> points, const QString& xTitle, const QString& yTitle) {
    points_ = std::move(points);
    xTitle_ = xTitle;
    yTitle_ = yTitle;
    update();
}

void RowsChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    const QRectF area(kLeftRoom, kEdge + 2 * kLineRoom, width() - kLeftRoom - 2 * kEdge,
                      height() - kEdge - 4 * kLineRoom);
    const auto [x0, x1] = RangeOf(points_, &QPointF::x);
    const auto [y0, y1] = RangeOf(points_, &QPointF::y);
    const auto at = [&, x0 = x0, x1 = x1, y0 = y0, y1 = y1](const QPointF& p) {
        return QPointF(area.left() + (p.x() - x0) / (x1 - x0) * area.width(),
                       area.bottom() - (p.y() - y0) / (y1 - y0) * area.height());
    };
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(0, kEdge, width(), kLineRoom), Qt::AlignLeft | Qt::AlignVCenter, " " + yTitle_);
    painter.drawText(QRectF(0, height() - kLineRoom - 2, width() - kEdge, kLineRoom), Qt::AlignRight | Qt::AlignVCenter,
                     xTitle_);
    const QRectF left(0, 0, kLeftRoom - 6, kLineRoom);
    painter.drawText(left.translated(0, area.top() - 8), Qt::AlignRight, NumberAt(y1));
    painter.drawText(left.translated(0, area.bottom() - 10), Qt::AlignRight, NumberAt(y0));
    painter.drawText(QRectF(area.left(), area.bottom() + 2, 80, kLineRoom), Qt::AlignLeft, NumberAt(x0));
    painter.drawText(QRectF(area.right() - 80, area.bottom() + 2, 80, kLineRoom), Qt::AlignRight, NumberAt(x1));

    QPolygonF line;
    for (const QPointF& point : points_) line << at(point);
    const QColor ink = palette().color(QPalette::Link);
    painter.setPen(QPen(ink, 1.6));
    painter.drawPolyline(line);
    painter.setBrush(ink);
    for (const QPointF& point : line) painter.drawEllipse(point, 2.5, 2.5);
}

}  // namespace lithmark
