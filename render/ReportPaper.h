// What stands on the pages of a report besides its text: the head and foot of each page, the company's lines and logo,
// and figures behind the text.
#pragma once

#include <QSize>
#include <QString>
#include <string>
#include <vector>

#include "render/PictureFile.h"

class QPainter;
class QRectF;

namespace lithmark {

// A drawing with its size in units of 1/96 inch.
struct ReportFigure {
    std::string Caption;
    QSize Size;
    Draw Paint;
};

struct ReportPaper {
    std::string Title, Author;         // of the document
    std::string Project, Order, Date;  // as they stand in the head of the report
    std::vector<std::string> Company;  // its lines, none of them empty
    std::string Logo;                  // the file of its picture; empty without one
    std::vector<ReportFigure> Figures;

    // "Project: ..." and "Order: ...", those that are not empty.
    std::vector<std::string> HeadLines() const;
    // "Figure 1: ..." of a figure, counted from 0.
    std::string CaptionOf(std::size_t figure) const;
    // "Page 2 of 3".
    static std::string PageText(const std::string& page, const std::string& pages);
    // Name and version of the program.
    static std::string Maker();
};

// The paper of the project in force, without figures.
ReportPaper PaperInForce();

// The company's logo: the file "Logo.png", "Logo.jpg", "Logo.jpeg" or "Logo.svg" of a folder, the first of them that is
// there, in any letter case. Empty without one.
std::string LogoFileIn(const std::string& folder);
// Draws a logo as large as fits, at the outer end of the area; nothing when the file is no picture.
void DrawLogoFile(QPainter& painter, const QRectF& area, const std::string& file, bool atLeft);
// Its size in units of its own; empty when the file is no picture.
QSize LogoSize(const std::string& file);

}  // namespace lithmark
