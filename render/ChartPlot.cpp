// The curves of a chart in the plotting library's widget.
#include <qcustomplot.h>

#include <algorithm>
#include <array>

#include "base/NumberText.h"
#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Told apart on screen, in print and by readers who do not see every colour (Okabe and Ito 2008).
constexpr std::array<QRgb, 4> kCurveColors = {0xFF0072B2, 0xFFD55E00, 0xFF009E73, 0xFFCC79A7};
constexpr std::array<Qt::PenStyle, 4> kCurvePens = {Qt::SolidLine, Qt::DashLine, Qt::DashDotLine, Qt::DotLine};

double CellValue(const std::string& cell) {
    return ParseNumber(cell, SharedServices().DecimalSign).value_or(std::numeric_limits<double>::quiet_NaN());
}

// The points of curve i in the order of the rows: a curve, not a function, since a load step has two points at one
// time.
void AddCurve(QCustomPlot& plot, const ChartArguments& chart, int i) {
    auto* curve = new QCPCurve(plot.xAxis, plot.yAxis);
    QVector<double> order, x, y;
    for (int row = 1; row <= chart.LastRow; ++row) {
        order.append(row);
        x.append(CellValue(chart.Cells(row, 1)));
        y.append(CellValue(chart.Cells(row, i + 1)));
    }
    curve->setData(order, x, y, true);
    curve->setName(Q(chart.Legends(i)));
    const auto slot = static_cast<std::size_t>(i - 1) % kCurveColors.size();
    const QColor color = QColor::fromRgb(kCurveColors[slot]);
    const LineStyle style = chart.LineStyles(i);
    curve->setPen(QPen(color, 2, kCurvePens[slot]));
    if (style == LineStyle::Points) curve->setLineStyle(QCPCurve::lsNone);
    if (style != LineStyle::LinesNoMarkers) {
        QCPScatterStyle marker(slot == 0 ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssSquare, color,
                               slot == 0 ? color : QColor(Qt::white), style == LineStyle::Points ? 7 : 5);
        marker.setPen(QPen(color, 1.5));
        curve->setScatterStyle(marker);
    }
}

// Some air around the curves; a load or settlement axis begins at zero.
void SetRanges(QCustomPlot& plot, const ChartArguments& chart) {
    plot.rescaleAxes();
    QCPRange y = plot.yAxis->range();
    if (y.lower > 0 && y.lower < 0.6 * y.upper) y.lower = 0;
    const double pad = y.size() > 0 ? 0.05 * y.size() : std::max(std::abs(y.upper) * 0.05, 0.5);
    plot.yAxis->setRange(y.lower == 0 ? 0 : y.lower - pad, y.upper + pad);
    const double start = chart.XStart, end = chart.XEnd;
    QCPRange x = plot.xAxis->range();
    if (end > start && start <= x.lower && end >= x.upper - 1e-6 * std::abs(x.upper)) x = QCPRange(start, end);
    const double side = x.size() > 0 ? 0.02 * x.size() : 0.5;
    plot.xAxis->setRange(x.lower - side, x.upper + side);
    plot.yAxis->setRangeReversed(chart.SettlementsDown);
}

// The corner of the plot with the fewest points of the curves in it.
Qt::Alignment EmptiestCorner(const QCustomPlot& plot, const ChartArguments& chart) {
    const QCPRange xs = plot.xAxis->range(), ys = plot.yAxis->range();
    std::array<int, 4> points{};  // upper right, lower right, upper left, lower left
    for (int row = 1; row <= chart.LastRow; ++row)
        for (int i = 1; i <= chart.Curves; ++i) {
            const double x = (CellValue(chart.Cells(row, 1)) - xs.lower) / xs.size();
            double y = (CellValue(chart.Cells(row, i + 1)) - ys.lower) / ys.size();
            if (plot.yAxis->rangeReversed()) y = 1 - y;
            if ((x > 0.35 && x < 0.65) || (y > 0.3 && y < 0.7)) continue;
            ++points[(x < 0.5 ? 2u : 0u) + (y < 0.5 ? 1u : 0u)];
        }
    const auto corner = std::min_element(points.begin(), points.end()) - points.begin();
    return (corner >= 2 ? Qt::AlignLeft : Qt::AlignRight) | (corner % 2 == 1 ? Qt::AlignBottom : Qt::AlignTop);
}

void StyleAxis(QCPAxis& axis, const std::string& title, const QFont& font) {
    axis.setLabel(Q(title));
    axis.setLabelFont(font);
    axis.setTickLabelFont(font);
    axis.setLabelPadding(6);
    axis.grid()->setPen(QPen(QColor(0xDD, 0xDD, 0xDD), 1, Qt::SolidLine));
    axis.grid()->setZeroLinePen(QPen(QColor(0x99, 0x99, 0x99), 1));
    axis.setNumberFormat("gb");
    axis.setNumberPrecision(6);
}

}  // namespace

void FillPlot(QCustomPlot& plot, const ChartArguments& chart) {
    plot.clearPlottables();
    plot.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    plot.setBackground(QBrush(Qt::white));
    const QFont font(QStringLiteral("DejaVu Sans"), 9);
    for (int i = 1; i <= chart.Curves; ++i) AddCurve(plot, chart, i);
    plot.axisRect()->setupFullAxesBox(true);
    for (QCPAxis* axis : {plot.xAxis2, plot.yAxis2}) axis->setTicks(false);
    StyleAxis(*plot.xAxis, chart.XTitle, font);
    StyleAxis(*plot.yAxis, chart.YTitle, font);
    SetRanges(plot, chart);
    plot.legend->setVisible(true);
    plot.legend->setFont(font);
    plot.legend->setBrush(QColor(255, 255, 255, 225));
    plot.legend->setBorderPen(QPen(QColor(0xBB, 0xBB, 0xBB)));
    plot.axisRect()->insetLayout()->setInsetAlignment(0, EmptiestCorner(plot, chart));
}

}  // namespace lithmark
