#include "desktop/SaveReport.h"

#include "desktop/DocumentChoices.h"
#include "desktop/PageTools.h"
#include "desktop/SaveDialog.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "render/StepTablesXlsx.h"
#include "report/AfterReport.h"
#include "report/StepTables.h"
#include "report/StepTablesCsv.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// A document, the tables for a check by hand alone, or, with neither, the report as plain text.
struct Kind {
    const char* Ending;
    std::string (*Document)(const std::string& report, const ReportPaper& paper) = nullptr;
    std::string (*Tables)(const std::vector<StepTable>& tables) = nullptr;
};
constexpr Kind kKinds[] = {{"pdf", ReportPdf},
                           {"rtf", ReportRtf},
                           {"html", ReportHtml},
                           {"txt"},
                           {"xlsx", nullptr, StepTablesXlsx},
                           {"csv", nullptr, StepTablesCsv}};

bool IsThere(const Kind& kind) {
    return kind.Tables == nullptr || (PartsChosen().Tables && !Steps().Tables().empty());
}

std::string BytesOf(const QString& ending) {
    std::string report = ReportWith(PartsChosen());
    for (const Kind& kind : kKinds) {
        if (ending != QLatin1String(kind.Ending)) continue;
        if (kind.Document != nullptr) return kind.Document(report, PaperChosen());
        if (kind.Tables != nullptr) return kind.Tables(Steps().Tables());
    }
    return report;
}

}  // namespace

void SaveReport(QWidget* parent) {
    std::vector<FileKind> kinds;
    for (const Kind& kind : kKinds) {
        if (!IsThere(kind)) continue;
        const QString ending = QString::fromLatin1(kind.Ending);
        kinds.push_back({ending.toUpper(), ending});
    }
    DocumentChoices choices(nullptr);
    const auto file = AskForFile(parent, PlainCaption(Text(9_text)), kinds, choices.Any() ? &choices : nullptr);
    if (!file) return;
    UnderCommonStep([&] {
        SharedServices().SetCurrentFile(file->Path);
        WriteWholeFile(file->Path, BytesOf(file->Ending));
    });
}

}  // namespace lithmark
