#include "render/PlotPage.h"

#include <qcustomplot.h>

#include "render/ChartDocument.h"
#include "render/PictureFile.h"
#include "render/QtText.h"
#include "render/SansFont.h"

namespace lithmark {

namespace {

constexpr QSize kPlotPageSize(kChartPageWidth, kChartPageHeight);
constexpr int kPlotPageMargin = 24, kPlotPageTitle = 36, kPlotPageTitleFont = 18;

void DrawPlotPage(QCPPainter& painter, const QString& title, const std::function<void(QCustomPlot&)>& fill) {
    painter.fillRect(QRect(QPoint(0, 0), kPlotPageSize), Qt::white);
    painter.setPen(Qt::black);
    painter.setFont(SansFont(kPlotPageTitleFont, true));
    const QSize room = kPlotPageSize - QSize(2 * kPlotPageMargin, 2 * kPlotPageMargin + kPlotPageTitle);
    painter.drawText(QRect(kPlotPageMargin, kPlotPageMargin, room.width(), kPlotPageTitle), Qt::AlignCenter, title);
    QCustomPlot plot;
    plot.setViewport(QRect(QPoint(0, 0), room));
    fill(plot);
    painter.save();
    painter.translate(kPlotPageMargin, kPlotPageMargin + kPlotPageTitle);
    plot.toPainter(&painter, room.width(), room.height());
    painter.restore();
}

}  // namespace

std::string PlotPage(PictureKind kind, const std::string& title, const std::function<void(QCustomPlot&)>& fill) {
    constexpr int kPngScale = 2;
    const QString name = Q(title);
    const Draw draw = [&](QCPPainter& painter) { DrawPlotPage(painter, name, fill); };
    switch (kind) {
        case PictureKind::Svg:
            return SvgOf(kPlotPageSize, name, draw);
        case PictureKind::Png:
            return PngOf(kPlotPageSize, kPngScale, draw);
        default:
            return PdfOf(kPlotPageSize, name, draw);
    }
}

}  // namespace lithmark
