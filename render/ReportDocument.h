// A report as a document: HTML, PDF (A4) and RTF, in a fixed-pitch font; right-to-left paragraphs in Arabic.
//
// Each function returns the document's bytes. `report` is a text with CR LF line ends; the language in force gives the
// font and the direction.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class QPagedPaintDevice;

namespace lithmark {

std::string ReportHtml(const std::string& report);
std::string ReportPdf(const std::string& report);
std::string ReportRtf(const std::string& report);

// Paints a report with page numbers on the pages of a printer or document.
void PaintReport(QPagedPaintDevice& device, const std::string& report, const std::string& fontName, double pointSize,
                 bool rightToLeft);

// The report's lines without their line ends.
std::vector<std::string> ReportLinesOf(const std::string& report);

// A line for display from right to left: words without Arabic letters are put between U+2066 and U+2069, so that
// numbers, symbols and units read from left to right and stay whole, and columns stand under each other.
std::string DisplayRightToLeft(std::string_view line);

// Where pages begin: indices of lines, the first one 0. No page has more than `linesPerPage` lines. The head of a table
// is not torn from its first rows, nor a heading from what stands under it.
std::vector<std::size_t> PageStarts(const std::vector<std::string>& lines, std::size_t linesPerPage);

}  // namespace lithmark
