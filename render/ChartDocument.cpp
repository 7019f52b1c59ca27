#include "render/ChartDocument.h"

#include <qcustomplot.h>

#include "base/Utf8.h"
#include "render/PictureFile.h"
#include "render/QtText.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// The page of a chart in points of 1/96 inch: A4 across, without margins.
constexpr QSize kSize(kChartPageWidth, kChartPageHeight);
constexpr int kMargin = 24, kLine = 16, kTitle = 28;
constexpr double kPixelsPerPoint = 96.0 / 72;

// Company lines and project text above the plot, the chart's title over it.
int DrawTitleBlock(QPainter& painter, const ChartArguments& chart) {
    const bool rightToLeft = LanguageTexts().RightToLeft();
    painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment near = Qt::AlignLeft | Qt::AlignVCenter;  // the side where the language begins
    const Qt::Alignment far = Qt::AlignRight | Qt::AlignVCenter;
    const auto row = [&](int i) { return QRect(kMargin, kMargin + i * kLine, kChartPageWidth - 2 * kMargin, kLine); };
    const auto draw = [&](const QRect& area, Qt::Alignment alignment, const std::string& text) {
        painter.drawText(area, static_cast<int>(QStyle::visualAlignment(painter.layoutDirection(), alignment)),
                         Q(text));
    };
    painter.setPen(Qt::black);
    painter.setFont(SansFont(8.5 * kPixelsPerPoint));
    const std::vector<std::string> project = Split(chart.ProjectText, '\n');
    const int lines = static_cast<int>(project.size()) - 1;
    for (int i = 0; i < lines; ++i) draw(row(i), near, project[static_cast<std::size_t>(i)]);
    draw(row(0), far, chart.CompanyLine1);
    draw(row(1), far, chart.CompanyLine2);
    const int rule = kMargin + lines * kLine + 4;
    painter.drawLine(kMargin, rule, kChartPageWidth - kMargin, rule);
    painter.setFont(SansFont(13 * kPixelsPerPoint, true));
    painter.drawText(QRect(kMargin, rule + 4, kChartPageWidth - 2 * kMargin, kTitle), Qt::AlignCenter,
                     Q(chart.ChartTitle));
    return rule + 4 + kTitle;
}

}  // namespace

void DrawChartPage(QCPPainter& painter, const ChartArguments& chart, const ChartLook& look) {
    painter.fillRect(QRect(0, 0, kChartPageWidth, kChartPageHeight), Qt::white);
    const int top = DrawTitleBlock(painter, chart);
    painter.save();
    painter.translate(kMargin, top);
    PaintPlot(painter, chart, QSize(kChartPageWidth - 2 * kMargin, kChartPageHeight - top - kMargin), look);
    painter.restore();
}

void PaintPlot(QCPPainter& painter, const ChartArguments& chart, const QSize& size, const ChartLook& look) {
    QCustomPlot plot;
    plot.setViewport(QRect(QPoint(0, 0), size));
    FillPlot(plot, chart, look);
    painter.setLayoutDirection(Qt::LeftToRight);
    plot.toPainter(&painter, size.width(), size.height());
}

std::string ChartSvg(const ChartArguments& chart, const ChartLook& look) {
    return SvgOf(kSize, Q(chart.ChartTitle), [&](QCPPainter& painter) { DrawChartPage(painter, chart, look); });
}

std::string ChartPng(const ChartArguments& chart, const ChartLook& look) {
    constexpr int kScale = 2;
    return PngOf(kSize, kScale, [&](QCPPainter& painter) { DrawChartPage(painter, chart, look); });
}

std::string ChartPdf(const ChartArguments& chart, const ChartLook& look) {
    return PdfOf(kSize, Q(chart.ChartTitle), [&](QCPPainter& painter) { DrawChartPage(painter, chart, look); });
}

}  // namespace lithmark
