#include <QBuffer>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>
#include <algorithm>

#include "base/Utf8.h"
#include "core/Session.h"
#include "render/RenderApplication.h"
#include "render/ReportDocument.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr double kMarginMm = 20;
constexpr double kPointSize = 9.5;
constexpr double kLineSpacing = 1.2;

// Draws one line inside `area`, in the language's direction.
void DrawTextLine(QPainter& painter, const QRectF& area, const QFont& font, const std::string& text, bool rightToLeft,
                  Qt::Alignment alignment) {
    QTextOption option(alignment);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    QTextLayout layout(QString::fromStdString(rightToLeft ? DisplayRightToLeft(text) : text), font, painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setLineWidth(area.width());
    layout.endLayout();
    layout.draw(&painter, area.topLeft());
}

}  // namespace

void PaintReport(QPagedPaintDevice& device, const std::string& report, const std::string& fontName, double pointSize,
                 bool rightToLeft) {
    const std::vector<std::string> lines = ReportLinesOf(report);
    QPainter painter(&device);
    const double width = device.width(), height = device.height();
    QFont font(QString::fromStdString(fontName));
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(pointSize);
    // A line wider than the page makes the whole report smaller, so that its columns stay in line.
    std::size_t longest = 1;
    for (const std::string& line : lines) longest = std::max(longest, CharacterCount(line));
    const double needed = QFontMetricsF(font, &device).horizontalAdvance('0') * static_cast<double>(longest);
    if (needed > width) font.setPointSizeF(pointSize * width / needed);

    const QFontMetricsF metrics(font, &device);
    const double step = metrics.height() * kLineSpacing / 1.1;
    const double footer = 2 * step;
    const auto linesPerPage = static_cast<std::size_t>(std::max(10.0, (height - footer) / step));
    const std::vector<std::size_t> starts = PageStarts(lines, linesPerPage);
    for (std::size_t page = 0; page < starts.size(); ++page) {
        if (page > 0) device.newPage();
        const std::size_t end = page + 1 < starts.size() ? starts[page + 1] : lines.size();
        for (std::size_t i = starts[page]; i < end; ++i) {
            const double top = static_cast<double>(i - starts[page]) * step;
            DrawTextLine(painter, QRectF(0, top, width, step), font, lines[i], rightToLeft,
                         rightToLeft ? Qt::AlignRight : Qt::AlignLeft);
        }
        const std::string number =
            Text(902500_text, {{"|1", std::to_string(page + 1)}, {"|2", std::to_string(starts.size())}});
        DrawTextLine(painter, QRectF(0, height - step, width, step), font, number, rightToLeft, Qt::AlignHCenter);
    }
}

std::string ReportPdf(const std::string& report) {
    EnsureRenderApplication();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter);
        writer.setResolution(600);
        writer.setTitle(QString::fromStdString(Text(160030_text) + " - " + Session.ProjectName));
        writer.setCreator(QString::fromStdString(Text(160030_text)));
        PaintReport(writer, report, Text(160017_text), kPointSize, LanguageTexts().RightToLeft());
    }
    return bytes.toStdString();
}

}  // namespace lithmark
