#include "render/ChartDocument.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "base/Utf8.h"
#include "render/RenderApplication.h"
#include "services/LanguageTexts.h"

namespace lithmark {

namespace {

// The page of a chart in points of 1/96 inch: A4 across, without margins.
constexpr int kWidth = 1020, kHeight = 680;
constexpr int kMargin = 24, kLine = 16, kTitle = 28;

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QFont TextFont(double points, bool bold = false) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(points * 96 / 72));
    font.setBold(bold);
    return font;
}

// Company lines and project text above the plot, the chart's title over it.
int DrawTitleBlock(QPainter& painter, const ChartArguments& chart) {
    const bool rightToLeft = LanguageTexts().RightToLeft();
    painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment near = Qt::AlignLeft | Qt::AlignVCenter;  // the side where the language begins
    const Qt::Alignment far = Qt::AlignRight | Qt::AlignVCenter;
    const auto row = [&](int i) { return QRect(kMargin, kMargin + i * kLine, kWidth - 2 * kMargin, kLine); };
    const auto draw = [&](const QRect& area, Qt::Alignment alignment, const std::string& text) {
        painter.drawText(area, static_cast<int>(QStyle::visualAlignment(painter.layoutDirection(), alignment)),
                         Q(text));
    };
    painter.setPen(Qt::black);
    painter.setFont(TextFont(8.5));
    const std::vector<std::string> project = Split(chart.ProjectText, '\n');
    const int lines = static_cast<int>(project.size()) - 1;
    for (int i = 0; i < lines; ++i) draw(row(i), near, project[static_cast<std::size_t>(i)]);
    draw(row(0), far, chart.CompanyLine1);
    draw(row(1), far, chart.CompanyLine2);
    const int rule = kMargin + lines * kLine + 4;
    painter.drawLine(kMargin, rule, kWidth - kMargin, rule);
    painter.setFont(TextFont(13, true));
    painter.drawText(QRect(kMargin, rule + 4, kWidth - 2 * kMargin, kTitle), Qt::AlignCenter, Q(chart.ChartTitle));
    return rule + 4 + kTitle;
}

void DrawChart(QCPPainter& painter, const ChartArguments& chart) {
    painter.fillRect(QRect(0, 0, kWidth, kHeight), Qt::white);
    const int top = DrawTitleBlock(painter, chart);
    QCustomPlot plot;
    FillPlot(plot, chart);
    painter.save();
    painter.translate(kMargin, top);
    painter.setLayoutDirection(Qt::LeftToRight);
    plot.toPainter(&painter, kWidth - 2 * kMargin, kHeight - top - kMargin);
    painter.restore();
}

}  // namespace

std::string ChartSvg(const ChartArguments& chart) {
    EnsureRenderApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(QSize(kWidth, kHeight));
        generator.setViewBox(QRect(0, 0, kWidth, kHeight));
        generator.setResolution(96);
        generator.setTitle(Q(chart.ChartTitle));
        QCPPainter painter;
        painter.begin(&generator);
        painter.setMode(QCPPainter::pmVectorized);
        painter.setMode(QCPPainter::pmNoCaching);
        DrawChart(painter, chart);
        painter.end();
    }
    return buffer.data().toStdString();
}

std::string ChartPng(const ChartArguments& chart) {
    EnsureRenderApplication();
    constexpr int kScale = 2;
    QImage image(kWidth * kScale, kHeight * kScale, QImage::Format_ARGB32_Premultiplied);
    {
        QCPPainter painter;
        painter.begin(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(kScale, kScale);
        DrawChart(painter, chart);
        painter.end();
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

std::string ChartPdf(const ChartArguments& chart) {
    EnsureRenderApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
        writer.setResolution(1200);
        writer.setTitle(Q(chart.ChartTitle));
        QCPPainter painter;
        painter.begin(&writer);
        painter.setMode(QCPPainter::pmVectorized);
        painter.setMode(QCPPainter::pmNoCaching);
        const double scale =
            std::min(static_cast<double>(writer.width()) / kWidth, static_cast<double>(writer.height()) / kHeight);
        painter.scale(scale, scale);
        DrawChart(painter, chart);
        painter.end();
    }
    return buffer.data().toStdString();
}

}  // namespace lithmark
