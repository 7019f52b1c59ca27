#include "render/figures/FieldChartDocument.h"

#include <qcustomplot.h>

#include <algorithm>

#include "render/ChartDocument.h"
#include "render/FieldPainter.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr double kWords = 12, kPresent = 5;

class FieldPlottable : public QCPAbstractPlottable {
  public:
    FieldPlottable(QCustomPlot& plot, const FieldChart& chart)
        : QCPAbstractPlottable(plot.xAxis, plot.yAxis), chart_(chart) {
        removeFromLegend();
    }
    double selectTest(const QPointF&, bool, QVariant*) const override { return -1; }
    QCPRange getKeyRange(bool& found, QCP::SignDomain) const override {
        found = true;
        return {chart_.Left, chart_.Right};
    }
    QCPRange getValueRange(bool& found, QCP::SignDomain, const QCPRange&) const override {
        found = true;
        return {chart_.Bottom, chart_.Top};
    }

  protected:
    void draw(QCPPainter* painter) override {
        const QRectF area = clipRect();
        const FieldMap map = [this](const FieldPoint& at) {
            return QPointF(keyAxis()->coordToPixel(at.X), valueAxis()->coordToPixel(at.Y));
        };
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->fillRect(area, Qt::white);
        PaintClasses(*painter, chart_.Field, map);
        FieldWords words(*painter, area, kWords);
        // What must stand goes first; the numbers of lines give way.
        PlacePresent(map, words);
        PlaceLimit(map, words);
        if (chart_.Field.Even())
            words.Place(area.center(), Text(910026_text, {{"|1", chart_.Field.ValueText(chart_.Field.Greatest())}}),
                        true);
        else
            PaintExtremes(*painter, chart_.Field, map, area, words);
        PaintClassLines(*painter, chart_.Field, true, true, map, words);
        PaintLimit(*painter, map);
        PaintPresent(*painter, map);
        words.Write();
        painter->restore();
    }
    void drawLegendIcon(QCPPainter*, const QRectF&) const override {}

  private:
    void PlacePresent(const FieldMap& map, FieldWords& words) const {
        if (chart_.Present) words.Place(map(*chart_.Present), chart_.PresentName, true, kPresent + 3);
    }
    void PlaceLimit(const FieldMap& map, FieldWords& words) const {
        if (!chart_.Limit) return;
        const std::vector<FieldLine> lines = chart_.Field.LineAt(*chart_.Limit);
        if (!lines.empty()) words.Place(map(lines[lines.size() / 2].From), chart_.LimitName, true);
    }
    // Paper's colours, since the sheet is light. A light edge keeps lines clear of the dark classes.
    void PaintLimit(QPainter& painter, const FieldMap& map) const {
        if (!chart_.Limit) return;
        const std::vector<FieldLine> lines = chart_.Field.LineAt(*chart_.Limit);
        for (const auto& [colour, width] :
             {std::pair(QColor(Qt::white), 4.5), {ColourOf(Ink::Error, Theme::Light), 2.5}}) {
            painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
            for (const FieldLine& line : lines) painter.drawLine(map(line.From), map(line.To));
        }
    }
    void PaintPresent(QPainter& painter, const FieldMap& map) const {
        if (!chart_.Present) return;
        const QPointF at = map(*chart_.Present);
        for (const auto& [colour, width] :
             {std::pair(QColor(Qt::white), 4.5), {ColourOf(Ink::Point, Theme::Light), 2.0}}) {
            painter.setPen(QPen(colour, width));
            painter.drawEllipse(at, kPresent, kPresent);
        }
    }

    const FieldChart chart_;
};

// The classes beside the plot, each limit with its number.
void FillScale(QCPColorScale& scale, const FieldChart& chart, const ChartInks& inks) {
    const FieldPlot& field = chart.Field;
    QCPColorGradient colours;
    colours.clearColorStops();
    const int classes = field.Classes();
    for (int cls = 1; cls <= classes; ++cls)
        colours.setColorStopAt(classes == 1 ? 0 : static_cast<double>(cls - 1) / (classes - 1),
                               QColor::fromRgb(field.ColourOf(cls)));
    if (classes == 1) colours.setColorStopAt(1, QColor::fromRgb(field.ColourOf(1)));
    colours.setLevelCount(std::max(2, classes));
    scale.setGradient(colours);
    scale.setDataRange({field.Limits().front(), field.Limits().back()});
    StyleChartAxis(*scale.axis(), chart.ValueTitle, inks);
    QSharedPointer<QCPAxisTickerText> limits(new QCPAxisTickerText);
    for (const double limit : field.Limits()) limits->addTick(limit, Q(field.LimitText(limit)));
    scale.axis()->setTicker(limits);
}

QCPColorScale& ScaleOf(QCustomPlot& plot) {
    constexpr int kBar = 16;
    if (plot.plotLayout()->hasElement(0, 1)) return *static_cast<QCPColorScale*>(plot.plotLayout()->element(0, 1));
    auto* scale = new QCPColorScale(&plot);
    scale->setBarWidth(kBar);
    plot.plotLayout()->addElement(0, 1, scale);
    auto* sides = new QCPMarginGroup(&plot);
    for (QCPLayoutElement* element : std::initializer_list<QCPLayoutElement*>{scale, plot.axisRect()})
        element->setMarginGroup(QCP::msTop | QCP::msBottom, sides);
    return *scale;
}

}  // namespace

void FillFieldChart(QCustomPlot& plot, const FieldChart& chart, const ChartInks& inks) {
    plot.clearPlottables();
    plot.setBackground(QBrush(inks.Ground));
    new FieldPlottable(plot, chart);
    plot.axisRect()->setupFullAxesBox(true);
    for (QCPAxis* axis : {plot.xAxis2, plot.yAxis2}) {
        axis->setTicks(false);
        axis->setBasePen(QPen(inks.Axes));
    }
    StyleChartAxis(*plot.xAxis, chart.XTitle, inks);
    StyleChartAxis(*plot.yAxis, chart.YTitle, inks);
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) axis->grid()->setVisible(false);
    plot.xAxis->setRange(chart.Left, chart.Right);
    plot.yAxis->setRange(chart.Bottom, chart.Top);
    FillScale(ScaleOf(plot), chart, inks);
}

std::string FieldChartFile(PictureKind kind, const FieldChart& chart) {
    return PlotPage(kind, chart.Title, [&](QCustomPlot& plot) { FillFieldChart(plot, chart, {}); });
}

}  // namespace lithmark
