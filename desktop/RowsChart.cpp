#include "desktop/RowsChart.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/GraphicWords.h"
#include "desktop/PageTools.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kChartEdge = 8, kLeftRoom = 58, kLineRoom = 20;

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

RowsChart::RowsChart(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
    setObjectName(QStringLiteral("rowsChart"));
    setLayoutDirection(Qt::LeftToRight);
    setMinimumSize(200, 160);
    MakeGraphic(*this, Q(Text(913601_text)));
}

void RowsChart::Show(std::vector<QPointF> points, const QString& xTitle, const QString& yTitle) {
    points_ = std::move(points);
    xTitle_ = xTitle;
    yTitle_ = yTitle;
    if (points_.empty()) {
        TellGraphic(*this, QString());
    } else {
        const auto ends = [this](double (QPointF::*of)() const) {
            const auto [least, greatest] =
                std::minmax_element(points_.begin(), points_.end(),
                                    [of](const QPointF& a, const QPointF& b) { return (a.*of)() < (b.*of)(); });
            return std::pair(NumberAt(((*least).*of)()).toStdString(), NumberAt(((*greatest).*of)()).toStdString());
        };
        const auto [x0, x1] = ends(&QPointF::x);
        const auto [y0, y1] = ends(&QPointF::y);
        TellGraphic(*this, Q(Text(910010_text, {{"|1", yTitle_.toStdString()},
                                                {"|2", y0},
                                                {"|3", y1},
                                                {"|4", xTitle_.toStdString()},
                                                {"|5", x0},
                                                {"|6", x1}})));
    }
    update();
}

std::vector<QPointF> RowsChart::Drawn() const {
    if (kind_ == Kind::Line || points_.empty()) return points_;
    std::vector<QPointF> corners;
    double height = 0;
    for (const QPointF& point : points_) {
        // The first step begins with the time axis.
        const double from = std::max(0.0, point.x() - 1);
        corners.emplace_back(from, height);
        height = point.y();
        corners.emplace_back(from, height);
    }
    const auto last = std::max_element(points_.begin(), points_.end(),
                                       [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    corners.emplace_back(last->x(), height);
    return corners;
}

void RowsChart::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    const QRectF area(kLeftRoom, kChartEdge + 2 * kLineRoom, width() - kLeftRoom - 2 * kChartEdge,
                      height() - kChartEdge - 4 * kLineRoom);
    const auto [x0, x1] = RangeOf(points_, &QPointF::x);
    const auto [y0, y1] = RangeOf(points_, &QPointF::y);
    const auto at = [&, x0 = x0, x1 = x1, y0 = y0, y1 = y1](const QPointF& p) {
        return QPointF(area.left() + (p.x() - x0) / (x1 - x0) * area.width(),
                       area.bottom() - (p.y() - y0) / (y1 - y0) * area.height());
    };
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(0, kChartEdge, width(), kLineRoom), Qt::AlignLeft | Qt::AlignVCenter, " " + yTitle_);
    painter.drawText(QRectF(0, height() - kLineRoom - 2, width() - kChartEdge, kLineRoom),
                     Qt::AlignRight | Qt::AlignVCenter, xTitle_);
    const QRectF left(0, 0, kLeftRoom - 6, kLineRoom);
    painter.drawText(left.translated(0, area.top() - 8), Qt::AlignRight, NumberAt(y1));
    painter.drawText(left.translated(0, area.bottom() - 10), Qt::AlignRight, NumberAt(y0));
    painter.drawText(QRectF(area.left(), area.bottom() + 2, 80, kLineRoom), Qt::AlignLeft, NumberAt(x0));
    painter.drawText(QRectF(area.right() - 80, area.bottom() + 2, 80, kLineRoom), Qt::AlignRight, NumberAt(x1));

    QPolygonF line;
    for (const QPointF& point : Drawn()) line << at(point);
    const QColor ink = palette().color(QPalette::Link);
    painter.setPen(QPen(ink, 1.6));
    painter.drawPolyline(line);
    if (kind_ == Kind::Stairs) return;
    painter.setBrush(ink);
    for (const QPointF& point : line) painter.drawEllipse(point, 2.5, 2.5);
}

}  // namespace lithmark
