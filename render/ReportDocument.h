// A report as a document: HTML, PDF (A4) and RTF, and on paper.
//
// The text stays the report, line by line, in its fixed-pitch font; from right to left in Arabic. Around it stands what
// ReportPaper has. Each function returns the document's bytes; `report` is a text with CR LF line ends, and the
// language in force gives font, direction and words.
#pragma once

#include <string>
#include <vector>

#include "render/ReportPaper.h"

class QPagedPaintDevice;

namespace lithmark {

// The size of the report's letters in every document: that of the printer, so that the preview is the PDF.
inline constexpr int kReportPoints = 8;

std::string ReportHtml(const std::string& report, const ReportPaper& paper = PaperInForce());
std::string ReportPdf(const std::string& report, const ReportPaper& paper = PaperInForce());
std::string ReportRtf(const std::string& report, const ReportPaper& paper = PaperInForce());

// How the pages of a device are set: A4 with the margins that the painting leaves free.
void SetReportPage(QPagedPaintDevice& device);

// A place that a reader can go to: its page, from 0 on, and the part of the page's height above it.
struct PaintedHeading {
    std::string Text;
    int Level;
    int Page;
    double Top;
};

// Paints a report on the pages of a printer or document that SetReportPage has set.
std::vector<PaintedHeading> PaintReport(QPagedPaintDevice& device, const std::string& report, const ReportPaper& paper,
                                        const std::string& fontName, double pointSize, bool rightToLeft);

}  // namespace lithmark
