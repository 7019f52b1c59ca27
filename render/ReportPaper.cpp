#include "render/ReportPaper.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

bool IsSvg(const std::string& file) {
    return LowerAscii(file).ends_with(".svg");
}

}  // namespace

std::vector<std::string> ReportPaper::HeadLines() const {
    std::vector<std::string> lines;
    if (!Project.empty()) lines.push_back(Text(95_text, Styles::Heading) + Project);
    if (!Order.empty()) lines.push_back(Text(11_text, Styles::Heading) + Order);
    return lines;
}

std::string ReportPaper::CaptionOf(std::size_t figure) const {
    return Text(911000_text, {{"|1", std::to_string(figure + 1)}, {"|2", Figures.at(figure).Caption}});
}

std::string ReportPaper::PageText(const std::string& page, const std::string& pages) {
    return Text(902500_text, {{"|1", page}, {"|2", pages}});
}

std::string ReportPaper::Maker() {
    return Text(160030_text) + " " + LanguageTexts().VersionText();
}

ReportPaper PaperInForce() {
    ReportPaper paper;
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    const std::string subject = problem != nullptr ? Text(problem->Subject) : Text(160030_text);
    paper.Title = PrintableText(Session.ProjectName.empty() ? subject : subject + " - " + Session.ProjectName);
    paper.Project = PrintableText(Session.Proj);
    paper.Order = PrintableText(Session.Auftr);
    paper.Date = PrintableText(Session.Datum);
    for (const std::string* line : {&Session.FirmaLine1, &Session.FirmaLine2})
        if (const std::string text = Trim(PrintableText(*line)); !text.empty()) paper.Company.push_back(text);
    paper.Author = paper.Company.empty() ? Text(160030_text) : paper.Company.front();
    paper.Logo = LogoFileIn(Session.ProgramDir);
    return paper;
}

std::string LogoFileIn(const std::string& folder) {
    if (folder.empty()) return {};
    for (const char* name : {"logo.png", "logo.jpg", "logo.jpeg", "logo.svg"}) {
        const QFileInfoList files = QDir(Q(folder)).entryInfoList({QLatin1String(name)}, QDir::Files | QDir::Readable,
                                                                  QDir::Name | QDir::IgnoreCase);
        if (!files.isEmpty()) return files.front().absoluteFilePath().toStdString();
    }
    return {};
}

QSize LogoSize(const std::string& file) {
    if (file.empty()) return {};
    return IsSvg(file) ? QSvgRenderer(Q(file)).defaultSize() : QImageReader(Q(file)).size();
}

void DrawLogoFile(QPainter& painter, const QRectF& area, const std::string& file, bool atLeft) {
    const QSizeF size = QSizeF(LogoSize(file)).scaled(area.size(), Qt::KeepAspectRatio);
    if (size.isEmpty()) return;
    const QRectF place(QPointF(atLeft ? area.left() : area.right() - size.width(), area.top()), size);
    if (IsSvg(file))
        QSvgRenderer(Q(file)).render(&painter, place);
    else
        painter.drawImage(place, QImage(Q(file)));
}

}  // namespace lithmark
