// A drawing as the bytes of an SVG, PNG or PDF file. Charts and contour plots are written through these.
#pragma once

#include <QSize>
#include <QString>
#include <functional>
#include <string>

class QCPPainter;

namespace lithmark {

// Draws on a painter whose units are those of the drawing's size.
using Draw = std::function<void(QCPPainter&)>;

std::string SvgOf(const QSize& size, const QString& title, const Draw& draw);
// `scale` pixels for each unit of the size.
std::string PngOf(const QSize& size, int scale, const Draw& draw);
// One page, A4 across, with margins of 10 mm; the drawing is as large as fits.
std::string PdfOf(const QSize& size, const QString& title, const Draw& draw);

}  // namespace lithmark
