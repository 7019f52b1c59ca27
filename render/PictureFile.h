// A drawing as the bytes of an SVG, PNG or PDF file. Charts and contour plots are written through these.
#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <string>

class QCPPainter;
class QPaintDevice;

namespace lithmark {

// The side of a square plot in pixels where none is asked for.
inline constexpr int kUsualSide = 700;

// Draws on a painter whose units are those of the drawing's size.
using Draw = std::function<void(QCPPainter&)>;

// Draws on a page that is being painted. A page that is only recorded, as the preview does, would bend Arabic texts
// when it is replayed: there the drawing is pixels.
void DrawOnPage(QCPPainter& painter, const QSize& size, const Draw& draw);

// Lines and texts stay such, instead of becoming pixels; the drawing is as large as fits into the extent.
void DrawAsVectors(QPaintDevice& device, const QSizeF& extent, const QSize& size, const Draw& draw);

std::string SvgOf(const QSize& size, const QString& title, const Draw& draw);
// `scale` pixels for each unit of the size.
std::string PngOf(const QSize& size, int scale, const Draw& draw);
// One page, A4 across, with margins of 10 mm; the drawing is as large as fits.
std::string PdfOf(const QSize& size, const QString& title, const Draw& draw);

}  // namespace lithmark
