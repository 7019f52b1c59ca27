#include "desktop/SaveReport.h"

#include <QFileDialog>
#include <QFileInfo>

#include "core/Session.h"
#include "desktop/PageTools.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "render/StepTablesXlsx.h"
#include "render/figures/ReportFigures.h"
#include "report/StepTables.h"
#include "report/StepTablesCsv.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

struct Kind {
    const char* Ending;
    std::string (*Bytes)(const std::string& report);
    bool OfTables = false;  // has the tables for a check by hand and nothing else
};
// The documents have the problem's drawing behind the text.
constexpr Kind kKinds[] = {
    {"pdf", [](const std::string& report) { return ReportPdf(report, PaperWithFigures(Figures::Drawing)); }},
    {"rtf", [](const std::string& report) { return ReportRtf(report, PaperWithFigures(Figures::Drawing)); }},
    {"html", [](const std::string& report) { return ReportHtml(report, PaperWithFigures(Figures::Drawing)); }},
    {"txt", [](const std::string& report) { return report; }},
    {"xlsx", [](const std::string&) { return StepTablesXlsx(Steps().Tables()); }, true},
    {"csv", [](const std::string&) { return StepTablesCsv(Steps().Tables()); }, true}};

bool IsThere(const Kind& kind, bool withTables) {
    return !kind.OfTables || (withTables && !Steps().Tables().empty());
}

const Kind* KindOf(const QString& ending, bool withTables) {
    for (const Kind& kind : kKinds)
        if (IsThere(kind, withTables) && ending.compare(QLatin1String(kind.Ending), Qt::CaseInsensitive) == 0)
            return &kind;
    return nullptr;
}

}  // namespace

void SaveReport(QWidget* parent, const std::string& report, bool withTables) {
    QStringList filters;
    for (const Kind& kind : kKinds) {
        if (!IsThere(kind, withTables)) continue;
        const QString ending = QLatin1String(kind.Ending);
        filters.append(ending.toUpper() + QStringLiteral(" (*.") + ending + QLatin1Char(')'));
    }
    QFileDialog dialog(parent, PlainCaption(Text(9_text)), Q(Session.WorkDir), filters.join(QStringLiteral(";;")));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const auto follow = [&dialog] {
        dialog.setDefaultSuffix(dialog.selectedNameFilter().section(QLatin1Char(' '), 0, 0).toLower());
    };
    follow();
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    dialog.selectFile(Q(Session.WorkName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    const QString file = dialog.selectedFiles().front();
    const Kind* kind = KindOf(QFileInfo(file).suffix(), withTables);
    UnderCommonStep([&] {
        SharedServices().SetCurrentFile(file.toStdString());
        // Any other ending is the user's own name for a text.
        WriteWholeFile(file.toStdString(), kind != nullptr ? kind->Bytes(report) : report);
    });
}

}  // namespace lithmark
