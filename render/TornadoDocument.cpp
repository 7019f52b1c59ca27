#include "render/TornadoDocument.h"

#include <qcustomplot.h>

#include <algorithm>

#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "render/SansFont.h"

namespace lithmark {

namespace {

// One colour's bars; the uppermost has the greatest key.
void AddBars(QCustomPlot& plot, const TornadoPicture& picture, const std::string& legend, QColor fill,
             double TornadoPicture::Bar::*end) {
    auto* bars = new QCPBars(plot.yAxis, plot.xAxis);
    QVector<double> keys, values;
    for (std::size_t i = 0; i < picture.Bars.size(); ++i) {
        keys.append(static_cast<double>(picture.Bars.size() - i));
        values.append(picture.Bars[i].*end - picture.Middle);
    }
    bars->setData(keys, values);
    bars->setBaseValue(picture.Middle);
    bars->setWidth(0.6);
    bars->setName(Q(legend));
    bars->setPen(QPen(fill, 1));
    fill.setAlpha(200);  // where both lie on one side, both are seen
    bars->setBrush(fill);
}

}  // namespace

void FillTornado(QCustomPlot& plot, const TornadoPicture& picture, const ChartInks& inks) {
    plot.clearPlottables();
    plot.setBackground(QBrush(inks.Ground));
    plot.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    AddBars(plot, picture, picture.LowLegend, inks.Curves[0], &TornadoPicture::Bar::AtLow);
    AddBars(plot, picture, picture.HighLegend, inks.Curves[1], &TornadoPicture::Bar::AtHigh);
    QSharedPointer<QCPAxisTickerText> names(new QCPAxisTickerText);
    double least = picture.Middle, greatest = picture.Middle;
    for (std::size_t i = 0; i < picture.Bars.size(); ++i) {
        const auto& bar = picture.Bars[i];
        names->addTick(static_cast<double>(picture.Bars.size() - i), Q(bar.Name));
        least = std::min({least, bar.AtLow, bar.AtHigh});
        greatest = std::max({greatest, bar.AtLow, bar.AtHigh});
    }
    const double side = greatest > least ? 0.06 * (greatest - least) : std::max(0.5, std::abs(least) * 0.05);
    plot.xAxis->setRange(least - side, greatest + side);
    plot.yAxis->setRange(0.4, static_cast<double>(picture.Bars.size()) + 0.6);
    plot.yAxis->setTicker(names);
    plot.axisRect()->setupFullAxesBox(true);
    for (QCPAxis* axis : {plot.xAxis2, plot.yAxis2}) {
        axis->setTicks(false);
        axis->setBasePen(QPen(inks.Axes));
    }
    const QFont font = SansFont(13);
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) {
        for (const auto set : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen})
            (axis->*set)(QPen(inks.Axes));
        for (const auto set : {&QCPAxis::setTickLabelColor, &QCPAxis::setLabelColor}) (axis->*set)(inks.Text);
        axis->setTickLabelFont(font);
        axis->setLabelFont(font);
        axis->grid()->setPen(QPen(inks.Grid, 1, Qt::SolidLine));
        axis->grid()->setZeroLinePen(QPen(inks.Axes, 1));
    }
    plot.yAxis->grid()->setVisible(false);
    plot.yAxis->setTickLength(0);
    StyleChartAxis(*plot.xAxis, picture.Axis, inks);
    PlaceLegend(plot, inks);
}

std::string TornadoFile(PictureKind kind, const TornadoPicture& picture) {
    return PlotPage(kind, picture.Title, [&](QCustomPlot& plot) { FillTornado(plot, picture, {}); });
}

}  // namespace lithmark
