// A drawing as the bytes of an SVG, PNG or PDF file. Charts and contour plots are written through these.
#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <string>

class QCPPainter;
class QPaintDevice;
class QPainter;

namespace lithmark {

// The side of a square plot in pixels where none is asked for.
inline constexpr int kUsualSide = 700;

// Draws on a painter whose units are those of the drawing's size.
using Draw = std::function<void(QCPPainter&)>;

// A page that is only recorded, as the preview's are: replayed, each run of a text stands as one from left to right,
// which bends Arabic (signs and spaces at a run's ends change their sides).
bool IsRecorded(const QPainter& painter);

// Draws on a page that is being painted; where it is only recorded and the language is Arabic, as pixels.
void DrawOnPage(QCPPainter& painter, const QSize& size, const Draw& draw);

// Lines and texts stay such, instead of becoming pixels; the drawing is as large as fits into the extent.
void DrawAsVectors(QPaintDevice& device, const QSizeF& extent, const QSize& size, const Draw& draw);

std::string SvgOf(const QSize& size, const QString& title, const Draw& draw);
// `scale` pixels for each unit of the size.
std::string PngOf(const QSize& size, int scale, const Draw& draw);
// One page, A4 across, with margins of 10 mm; the drawing is as large as fits.
std::string PdfOf(const QSize& size, const QString& title, const Draw& draw);

}  // namespace lithmark
