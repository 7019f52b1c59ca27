// The contour plot with its legend as a picture or a document, and the surface that draws it with Qt.
#pragma once

#include <QPainter>
#include <string>
#include <vector>

#include "contour/BasContour.h"

namespace lithmark {

// `size` is the side of the plot in pixels; 0 takes the usual one. Each returns the file's bytes.
std::string ContourSvg(BasContour& plot, int size);
std::string ContourPng(BasContour& plot, int size);
std::string ContourPdf(BasContour& plot, int size);

// The page of all three.
QSize ContourPageSize(int size);
void DrawContourPage(QPainter& painter, BasContour& plot, int size);
// What is asked for, with its unit; the plot with its legend as a figure of a report shows it, without a title, and its
// size.
std::string ContourTitle();
void PaintContour(QPainter& painter, BasContour& plot);
QSize ContourSize();

// Draws on a QPainter inside a rectangle. Single pixels are gathered in an image and put under everything else.
class PainterSurface : public Surface {
  public:
    // `area` in the painter's coordinates stands for `pixels` of the surface.
    PainterSurface(QPainter& painter, const QRectF& area, const QSize& pixels, const QFont& font);

    PixelExtent Pixels() const override;
    void Clear() override;
    void SetPixelScale() override;
    void SetWorldScale(double left, double top, double right, double bottom) override;
    void Pixel(int x, int y, int color) override;
    void Line(double x1, double y1, double x2, double y2, int color) override;
    void Print(double x, double y, const std::string& text) override;
    void FilledBox(double x1, double y1, double x2, double y2, int color) override;
    // Puts what was filled pixel by pixel on the painter.
    void FlushPixels();

  private:
    QPointF At(double x, double y) const;

    QPainter& painter_;
    QRectF area_;
    QSize pixels_;
    QFont font_;
    QImage image_;
    bool imageUsed_ = false;
    std::vector<QRectF> printed_;
    double left_ = 0, top_ = 0, right_ = 1, bottom_ = 1;
};

}  // namespace lithmark
