#include "render/ContourDocument.h"

#include <qcustomplot.h>

#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "render/PictureFile.h"
#include "render/QtText.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kFigureSide = 460;

QRgb ColorOf(int number) {
    return 0xFF000000u | kPalette[static_cast<std::size_t>(number) % kPalette.size()];
}

// Measures of a plot of `side` pixels with its title and legend.
struct ContourLayout {
    // 0 takes the usual side.
    explicit ContourLayout(int side)
        : Side(side > 0 ? side : kUsualSide), Margin(Side / 30), Title(Side / 14), Legend(Side / 4) {}
    QSize Size() const { return {Width(), Height()}; }
    int Width() const { return Side + Legend + 3 * Margin; }
    int Height() const { return Side + Title + 2 * Margin; }
    int Side, Margin, Title, Legend;
};

// The plot and its legend beside it, from `top` on.
void DrawPlot(QPainter& painter, BasContour& plot, const ContourLayout& layout, int top) {
    const QRectF area(layout.Margin, top, layout.Side, layout.Side);
    painter.save();
    painter.setClipRect(area);
    PainterSurface surface(painter, area, QSize(layout.Side, layout.Side), SansFont(layout.Side / 55.0));
    plot.Redraw(surface, {});
    painter.restore();
    painter.setPen(QPen(QColor(0x88, 0x88, 0x88), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);

    const QRectF legend(area.right() + layout.Margin, area.top() + layout.Side * 0.1, layout.Legend * 1.6,
                        layout.Side * 0.8);
    PainterSurface legendSurface(painter, legend, QSize(layout.Legend, layout.Side), SansFont(layout.Side / 40.0));
    plot.DrawLegend(legendSurface);
}

void DrawContour(QPainter& painter, BasContour& plot, const ContourLayout& layout) {
    painter.fillRect(QRect(0, 0, layout.Width(), layout.Height()), Qt::white);
    painter.setPen(Qt::black);
    painter.setFont(SansFont(layout.Title * 0.42, true));
    const QRect title(layout.Margin, layout.Margin / 2, layout.Width() - 2 * layout.Margin, layout.Title);
    painter.drawText(title, Qt::AlignCenter, Q(ContourTitle() + "   " + Session.ProjectName));
    DrawPlot(painter, plot, layout, layout.Margin + layout.Title);
}

}  // namespace

std::string ContourTitle() {
    const bool pressure = PressureContoursRequested();
    const TextId title = pressure ? 90098_text : ProblemInForce().RaftSettlement;
    return Text(title) + " " + (pressure ? LabelOf(Unit::Pressure) : Session.Len2Label);
}

void PaintContour(QPainter& painter, BasContour& plot) {
    const ContourLayout layout(kFigureSide);
    DrawPlot(painter, plot, layout, layout.Margin);
}

QSize ContourSize() {
    const ContourLayout layout(kFigureSide);
    return {layout.Width(), layout.Side + 2 * layout.Margin};
}

PainterSurface::PainterSurface(QPainter& painter, const QRectF& area, const QSize& pixels, const QFont& font)
    : painter_(painter), area_(area), pixels_(pixels), font_(font) {}

PixelExtent PainterSurface::Pixels() const {
    return {0, 0, pixels_.width(), pixels_.height()};
}

void PainterSurface::Clear() {
    painter_.fillRect(area_, Qt::white);
    printed_.clear();
    image_ = QImage(pixels_, QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
    imageUsed_ = false;
}

void PainterSurface::SetPixelScale() {
    left_ = top_ = 0;
    right_ = pixels_.width();
    bottom_ = pixels_.height();
}

void PainterSurface::SetWorldScale(double left, double top, double right, double bottom) {
    FlushPixels();
    left_ = left;
    top_ = top;
    right_ = right;
    bottom_ = bottom;
}

void PainterSurface::Pixel(int x, int y, int color) {
    if (!image_.valid(x, y)) return;
    reinterpret_cast<QRgb*>(image_.scanLine(y))[x] = ColorOf(color);
    imageUsed_ = true;
}

namespace {

// The rows of a triangle are rounded to whole pixels, so that two neighbours can leave a pixel between them. A pixel
// with nothing in it between two filled ones takes the colour of the first.
void ClosePinholes(QImage& image) {
    const QImage before = image;
    const auto at = [&](int x, int y) { return reinterpret_cast<const QRgb*>(before.constScanLine(y))[x]; };
    for (int y = 1; y + 1 < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 1; x + 1 < image.width(); ++x) {
            if (at(x, y) != 0) continue;
            if (at(x - 1, y) != 0 && at(x + 1, y) != 0)
                row[x] = at(x - 1, y);
            else if (at(x, y - 1) != 0 && at(x, y + 1) != 0)
                row[x] = at(x, y - 1);
        }
    }
}

}  // namespace

void PainterSurface::FlushPixels() {
    if (!imageUsed_) return;
    ClosePinholes(image_);
    painter_.drawImage(area_, image_);
    imageUsed_ = false;
}

QPointF PainterSurface::At(double x, double y) const {
    return {area_.left() + (x - left_) / (right_ - left_) * area_.width(),
            area_.top() + (y - top_) / (bottom_ - top_) * area_.height()};
}

void PainterSurface::Line(double x1, double y1, double x2, double y2, int color) {
    const double width = color == BasContour::kColorBoundary ? 2.5 : color == BasContour::kColorMesh ? 0.6 : 1.4;
    painter_.setPen(QPen(QColor::fromRgb(ColorOf(color)), width));
    painter_.drawLine(At(x1, y1), At(x2, y2));
}

void PainterSurface::Print(double x, double y, const std::string& text) {
    painter_.setFont(font_);
    const QPointF place = At(x, y);
    const QFontMetricsF metrics(font_, painter_.device());
    const QRectF box(place, QSizeF(metrics.horizontalAdvance(Q(text)) + 4, metrics.height()));
    // A legend's label stands beside its box; on the plot the value gets a ground to be read on.
    const bool legend = left_ == 0 && right_ == 1 && top_ == 1 && bottom_ == 0;
    if (!legend) {
        // Where values would cover each other the first one stands.
        for (const QRectF& taken : printed_)
            if (taken.intersects(box)) return;
        printed_.push_back(box);
        painter_.fillRect(box, QColor(255, 255, 255, 210));
    }
    painter_.setPen(Qt::black);
    painter_.drawText(box, Qt::AlignCenter, Q(text));
}

void PainterSurface::FilledBox(double x1, double y1, double x2, double y2, int color) {
    const QRectF box = QRectF(At(x1, y1), At(x2, y2)).normalized();
    painter_.fillRect(box, QColor::fromRgb(ColorOf(color)));
    painter_.setPen(QPen(Qt::black, 0.5));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(box);
}

QSize ContourPageSize(int size) {
    return ContourLayout(size).Size();
}

void DrawContourPage(QPainter& painter, BasContour& plot, int size) {
    DrawContour(painter, plot, ContourLayout(size));
}

std::string ContourSvg(BasContour& plot, int size) {
    const ContourLayout layout(size);
    return SvgOf(layout.Size(), Q(ContourTitle()), [&](QPainter& painter) { DrawContour(painter, plot, layout); });
}

std::string ContourPng(BasContour& plot, int size) {
    const ContourLayout layout(size);
    return PngOf(layout.Size(), 1, [&](QPainter& painter) { DrawContour(painter, plot, layout); });
}

std::string ContourPdf(BasContour& plot, int size) {
    const ContourLayout layout(size);
    return PdfOf(layout.Size(), Q(ContourTitle()), [&](QPainter& painter) { DrawContour(painter, plot, layout); });
}

}  // namespace lithmark
