#include "render/PictureFile.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "base/Utf8.h"
#include "render/DisplayLines.h"
#include "render/RenderApplication.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// The generator writes each run of a text by itself and leaves out its direction; viewers take it to be from left to
// right, and put blanks and colons at the wrong end of Arabic words. Marks at both ends of such a run hold them.
std::string WithDirections(const std::string& svg) {
    static const std::string kMark = "\u200F", kNone, kEnd = "</text>";
    std::string marked;
    std::size_t at = 0;
    for (std::size_t end = svg.find(kEnd); end != std::string::npos; end = svg.find(kEnd, at)) {
        const std::size_t begin = svg.rfind('>', end - 1) + 1;
        const std::string run = svg.substr(begin, end - begin);
        const std::string& mark = HasArabic(run) ? kMark : kNone;
        marked.append(svg, at, begin - at).append(mark).append(run).append(mark).append(kEnd);
        at = end + kEnd.size();
    }
    return marked + svg.substr(at);
}

QImage PixelsOf(const QSize& size, int scale, const Draw& draw) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QCPPainter painter;
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    draw(painter);
    painter.end();
    return image;
}

}  // namespace

bool IsRecorded(const QPainter& painter) {
    return painter.paintEngine()->type() == QPaintEngine::Picture;
}

void DrawOnPage(QCPPainter& painter, const QSize& size, const Draw& draw) {
    constexpr int kPixels = 4;  // for each unit: sharp at four times the size of the screen
    if (IsRecorded(painter) && LanguageTexts().RightToLeft())
        painter.drawImage(QRect(QPoint(0, 0), size), PixelsOf(size, kPixels, draw));
    else
        draw(painter);
}

void DrawAsVectors(QPaintDevice& device, const QSizeF& extent, const QSize& size, const Draw& draw) {
    QCPPainter painter;
    painter.begin(&device);
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    const double scale = std::min(extent.width() / size.width(), extent.height() / size.height());
    painter.scale(scale, scale);
    DrawOnPage(painter, size, draw);
    painter.end();
}

std::string SvgOf(const QSize& size, const QString& title, const Draw& draw) {
    EnsureRenderApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        generator.setSize(size);
        generator.setViewBox(QRect(QPoint(0, 0), size));
        generator.setResolution(96);
        generator.setTitle(title);
        DrawAsVectors(generator, size, size, draw);
    }
    // What XML does not allow may stand in any text that was drawn.
    return WithDirections(PrintableText(buffer.data().toStdString()));
}

std::string PngOf(const QSize& size, int scale, const Draw& draw) {
    EnsureRenderApplication();
    const QImage image = PixelsOf(size, scale, draw);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

std::string PdfOf(const QSize& size, const QString& title, const Draw& draw) {
    EnsureRenderApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
        writer.setResolution(1200);
        writer.setTitle(title);
        DrawAsVectors(writer, QSizeF(writer.width(), writer.height()), size, draw);
    }
    return buffer.data().toStdString();
}

}  // namespace lithmark
