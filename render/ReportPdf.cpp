#include <QBuffer>
#include <QPdfWriter>

#include "render/PdfOutline.h"
#include "render/QtText.h"
#include "render/RenderApplication.h"
#include "render/ReportDocument.h"
#include "services/texts/LanguageCodes.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

std::string ReportPdf(const std::string& report, const ReportPaper& paper) {
    EnsureRenderApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PdfDetails details;
    {
        QPdfWriter writer(&buffer);
        SetReportPage(writer);
        writer.setResolution(600);
        writer.setTitle(Q(paper.Title));
        writer.setCreator(Q(ReportPaper::Maker()));
        const double height = writer.pageLayout().fullRectPoints().height();
        for (const PaintedHeading& heading :
             PaintReport(writer, report, paper, Text(160017_text), kReportPoints, LanguageTexts().RightToLeft()))
            details.Bookmarks.push_back({heading.Text, heading.Level, heading.Page, height * (1 - heading.Top)});
    }
    details.Author = paper.Author;
    details.Language = PublicLanguageCode(LanguageTexts().Current());
    details.RightToLeft = LanguageTexts().RightToLeft();
    return WithDetails(buffer.data().toStdString(), details);
}

}  // namespace lithmark
