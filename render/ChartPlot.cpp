// The curves of a chart in the plotting library's widget: the one painter of screen and paper.
#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "contour/AxisTicks.h"
#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Each curve is told apart by its colour, its dash and its marker, so that print and eyes without colours do as well.
constexpr std::array<Qt::PenStyle, 4> kDashes = {Qt::SolidLine, Qt::DashLine, Qt::DashDotLine, Qt::DotLine};
constexpr std::array<QCPScatterStyle::ScatterShape, 4> kMarkers = {
    QCPScatterStyle::ssDisc, QCPScatterStyle::ssSquare, QCPScatterStyle::ssTriangle, QCPScatterStyle::ssDiamond};
constexpr int kMostMarkers = 40;  // of a curve; more would run into each other

std::size_t SlotOf(int curve) {
    return static_cast<std::size_t>(curve - 1) % kDashes.size();
}
// A fifth curve has the colour of the first and another dash.
std::size_t DashOf(int curve) {
    return (SlotOf(curve) + static_cast<std::size_t>(curve - 1) / kDashes.size()) % kDashes.size();
}

// Round ticks, as many as the axis has room for, in the digits of the language.
class RoundTicker : public QCPAxisTicker {
  public:
    RoundTicker(const QCPAxis& axis, bool whole) : axis_(axis), whole_(whole) {}

    void generate(const QCPRange& range, const QLocale&, QChar, int, QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override {
        const bool across = axis_.orientation() == Qt::Horizontal;
        const QSize room = axis_.parentPlot()->viewport().size();
        constexpr int kAcross = 85, kDown = 50, kEdges = 100;  // a tick's share, and what the titles take
        const int most = across ? (room.width() - kEdges) / kAcross : (room.height() - kEdges) / kDown;
        const AxisTicks round = RoundTicks(range.lower, range.upper, std::clamp(most, 3, 12), whole_);
        ticks = QVector<double>(round.Places.begin(), round.Places.end());
        if (subTicks) subTicks->clear();
        if (!tickLabels) return;
        tickLabels->clear();
        for (const double place : round.Places)
            tickLabels->append(Q(TickText(place, round.Decimals, LanguageDecimalSign())));
    }

  private:
    const QCPAxis& axis_;
    const bool whole_;
};

// The points of a curve in the order of the rows: a curve, not a function, since a load step has two points at one
// time. A row without a number is a gap.
void AddCurve(QCustomPlot& plot, const ChartArguments& chart, const ChartReading& reading, int i,
              const ChartLook& look) {
    auto* curve = new QCPCurve(plot.xAxis, plot.yAxis);
    const bool changed = AxesChanged(chart);
    QVector<double> order, x, y;
    for (int row = 1; row <= reading.Rows(); ++row) {
        order.append(row);
        x.append(changed ? reading.Y(row, i) : reading.X(row));
        y.append(changed ? reading.X(row) : reading.Y(row, i));
    }
    curve->setData(order, x, y, true);
    curve->setName(Q(chart.Legends(i)));
    const LineStyle style = chart.LineStyles(i);
    const QPen pen = CurvePen(i, look.Inks);
    curve->setPen(pen);
    if (style == LineStyle::Points) curve->setLineStyle(QCPCurve::lsNone);
    if (style == LineStyle::Points || (style == LineStyle::Solid && reading.Rows() <= kMostMarkers)) {
        const bool filled = DashOf(i) == 0;
        QCPScatterStyle marker(kMarkers[DashOf(i)], pen.color(), filled ? pen.color() : look.Inks.Ground,
                               style == LineStyle::Points ? 7 : 5);
        marker.setPen(QPen(pen.color(), 1.5));
        curve->setScatterStyle(marker);
    }
    curve->setVisible(look.Shows(i));
    if (!look.Shows(i)) curve->removeFromLegend();
}

QCPRange With(double air, QCPRange range) {
    const double pad = range.size() > 0 ? air * range.size() : std::max(std::abs(range.upper) * air, 0.5);
    return {range.lower - pad, range.upper + pad};
}

// Some air around the curves; an axis of values begins at zero where that is near.
QCPRange RangeOfValues(QCPRange range) {
    if (range.lower > 0 && range.lower < 0.6 * range.upper) range.lower = 0;
    if (range.upper < 0 && range.upper > 0.6 * range.lower) range.upper = 0;
    QCPRange padded = With(0.05, range);
    if (range.lower == 0 && range.upper > 0) padded.lower = 0;
    return padded;
}

// From the start to the end that the chart names, if all places lie between them.
QCPRange RangeOfPlaces(const ChartArguments& chart, QCPRange range) {
    const double start = chart.XStart, end = chart.XEnd;
    if (end > start && start <= range.lower && end >= range.upper - 1e-6 * std::abs(range.upper))
        range = QCPRange(start, end);
    return With(0.02, range);
}

void SetRanges(QCustomPlot& plot, const ChartArguments& chart, const ChartLook& look) {
    plot.rescaleAxes();  // of all curves, so that the scale stays when one is hidden
    QCPAxis &places = AxesChanged(chart) ? *plot.yAxis : *plot.xAxis,
            &values = AxesChanged(chart) ? *plot.xAxis : *plot.yAxis;
    places.setRange(RangeOfPlaces(chart, places.range()));
    values.setRange(RangeOfValues(values.range()));
    if (look.Horizontal) plot.xAxis->setRange(look.Horizontal->Lower, look.Horizontal->Upper);
    if (look.Vertical) plot.yAxis->setRange(look.Vertical->Lower, look.Vertical->Upper);
    plot.yAxis->setRangeReversed(chart.SettlementsDown);
}

}  // namespace

void PlaceLegend(QCustomPlot& plot, const ChartInks& inks) {
    QCPLegend* legend = plot.legend;
    legend->setVisible(true);
    legend->setFont(SansFont(kPlotTextPixels));
    legend->setTextColor(inks.Text);
    legend->setBrush(Qt::NoBrush);
    legend->setBorderPen(Qt::NoPen);
    const int entries = legend->itemCount();
    int width = 0;
    for (int i = 0; i < entries; ++i) width += legend->item(i)->minimumOuterSizeHint().width() + 12;
    if (legend->layout() == plot.axisRect()->insetLayout()) {
        plot.axisRect()->insetLayout()->take(legend);
        plot.plotLayout()->insertRow(0);
        plot.plotLayout()->addElement(0, 0, legend);
        plot.plotLayout()->setRowStretchFactor(0, 0.001);
    }
    const bool sideBySide = width < plot.viewport().width() - 40;
    legend->setFillOrder(QCPLegend::foColumnsFirst);
    legend->setWrap(sideBySide ? 0 : 1);
}

QString AxisLabel(const std::string& title) {
    const AxisWords words = WordsOf(title);
    if (!LanguageTexts().RightToLeft() || words.Symbol.empty()) return Q(title);
    // A unit that is a word of the language, such as a time unit, follows its direction.
    const bool sign = title.ends_with(']');
    const QString symbol = sign ? Q(title).mid(Q(words.Title).size()).trimmed() : Q(words.Symbol);
    const QString unit = sign ? QString() : QLatin1Char(' ') + Q(words.Unit);
    return QChar(0x2067) + Q(words.Title) + QLatin1Char(' ') + QChar(0x2066) + symbol + QChar(0x2069) + unit +
           QChar(0x2069);
}

void FitUprightTitle(QCPAxis& axis, const std::string& title) {
    constexpr int kBelow = 48;  // what the other axis takes of the height
    const AxisWords words = WordsOf(title);
    const QString whole = AxisLabel(title);
    const int room = axis.parentPlot()->viewport().height() - kBelow;
    const bool fits = words.Symbol.empty() || QFontMetrics(axis.labelFont()).horizontalAdvance(whole) <= room;
    axis.setLabel(fits ? whole : Q(words.Symbol + " [" + (words.Unit.empty() ? "-" : words.Unit) + "]"));
}

QPen CurvePen(int curve, const ChartInks& inks) {
    return {inks.Curves[SlotOf(curve)], 2, kDashes[DashOf(curve)]};
}

bool AxesChanged(const ChartArguments& chart) {
    return chart.SettlementsDown && TurnOf(chart) == ChartTurn::Depth;
}

void StyleChartAxis(QCPAxis& axis, const std::string& title, const ChartInks& inks, bool whole) {
    axis.setLabel(AxisLabel(title));
    axis.setLabelFont(SansFont(kPlotTextPixels));
    axis.setTickLabelFont(SansFont(kPlotTextPixels));
    axis.setLabelColor(inks.Text);
    axis.setTickLabelColor(inks.Text);
    axis.setLabelPadding(6);
    for (const auto set : {&QCPAxis::setBasePen, &QCPAxis::setTickPen}) (axis.*set)(QPen(inks.Axes));
    axis.setSubTicks(false);
    axis.grid()->setPen(QPen(inks.Grid, 1, Qt::SolidLine));
    axis.grid()->setZeroLinePen(QPen(inks.Axes, 1));
    axis.setTicker(QSharedPointer<RoundTicker>::create(axis, whole));
}

void FillPlot(QCustomPlot& plot, const ChartArguments& chart, const ChartLook& look) {
    plot.clearPlottables();
    plot.setBackground(QBrush(look.Inks.Ground));
    const ChartReading reading(chart);
    for (int i = 1; i <= chart.Curves; ++i) AddCurve(plot, chart, reading, i, look);
    plot.axisRect()->setupFullAxesBox(true);
    for (QCPAxis* axis : {plot.xAxis2, plot.yAxis2}) {
        axis->setTicks(false);
        axis->setBasePen(QPen(look.Inks.Axes));
    }
    const bool changed = AxesChanged(chart), time = HasTimeAxis(chart);
    StyleChartAxis(*plot.xAxis, changed ? chart.YTitle : chart.XTitle, look.Inks, time && !changed);
    StyleChartAxis(*plot.yAxis, changed ? chart.XTitle : chart.YTitle, look.Inks, time && changed);
    SetRanges(plot, chart, look);
    if (look.Legend && plot.legend->layout() == plot.axisRect()->insetLayout()) PlaceLegend(plot, look.Inks);
}

}  // namespace lithmark
