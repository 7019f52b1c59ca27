// The field of a raft's values as a picture or a document, and what a window shows of it. Regions and lines are drawn
// as such, sharp in every size.
#pragma once

#include <QRectF>
#include <optional>
#include <string>

#include "contour/FieldPlot.h"

class QPainter;
class QCPPainter;
class QCustomPlot;
class QSize;

namespace lithmark {

// What is drawn: a plot with its window, its field, what the boxes ask for, a section line if there is one.
struct FieldPicture {
    const BasContour& Plot;
    const FieldPlot& Field;
    ContourOptions Options;
    std::optional<FieldLine> Section;
};

// The plot in a square, the colours and their limits in a strip, and the curve along the section in an empty plot.
void DrawField(QPainter& painter, const QRectF& square, const FieldPicture& picture);
void DrawSection(QPainter& painter, const QRectF& square, const WorldWindow& window, const FieldLine& line);
void DrawFieldLegend(QPainter& painter, const QRectF& area, const FieldPlot& field);

// The page of all kinds: title, plot, legend and, with a section, its curve below. `size` is the side of the plot in
// pixels; 0 takes the usual one.
QSize FieldPageSize(const FieldPicture& picture, int size);
void DrawFieldPage(QCPPainter& painter, const FieldPicture& picture, int size);
std::string FieldSvg(const FieldPicture& picture, int size);
std::string FieldPng(const FieldPicture& picture, int size);
std::string FieldPdf(const FieldPicture& picture, int size);

}  // namespace lithmark
