#include "desktop/Printing.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>

#include "core/Session.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "render/figures/ReportFigures.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Asks for a name and writes the document in the format of its ending.
void SaveReport(QWidget* parent, const std::string& text, const ReportPaper& paper) {
    const QString file =
        QFileDialog::getSaveFileName(parent, Q(paper.Title), Q(Session.WorkDir + Session.WorkName + ".pdf"),
                                     QStringLiteral("PDF (*.pdf);;HTML (*.html);;RTF (*.rtf)"));
    if (file.isEmpty()) return;
    const std::string path = file.toStdString();
    UnderCommonStep([&] {
        const bool html = file.endsWith(QStringLiteral(".html"), Qt::CaseInsensitive);
        const bool rtf = file.endsWith(QStringLiteral(".rtf"), Qt::CaseInsensitive);
        WriteWholeFile(path, html ? ReportHtml(text, paper) : rtf ? ReportRtf(text, paper) : ReportPdf(text, paper));
    });
}

}  // namespace

void PrintReport(QWidget* parent, const std::string& text, const std::string& fontName, int fontSize,
                 bool rightToLeft) {
    QPrinter printer(QPrinter::HighResolution);
    SetReportPage(printer);
    ReportPaper paper = PaperWithFigures(Figures::Drawing);
    printer.setDocName(Q(paper.Title));
    QPrintPreviewDialog preview(&printer, parent);
    preview.setObjectName(QStringLiteral("printPreview"));
    preview.resize(900, 760);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { PaintReport(*target, text, paper, fontName, fontSize, rightToLeft); });

    // What the toolkit's own dialog does not offer stands in its bar.
    auto* figures = new QCheckBox(Q(Text(911002_text)), &preview);
    figures->setObjectName(QStringLiteral("chkFigures"));
    QObject::connect(figures, &QCheckBox::toggled, &preview, [&](bool all) {
        UnderCommonStep([&] { paper = PaperWithFigures(all ? Figures::All : Figures::Drawing); });
        if (auto* pages = preview.findChild<QPrintPreviewWidget*>()) pages->updatePreview();
    });
    // Problems without results to be drawn have nothing to choose.
    if (!ProblemHasFigures()) figures->hide();
    if (auto* bar = preview.findChild<QToolBar*>()) {
        bar->addSeparator();
        if (ProblemHasFigures()) bar->addWidget(figures);
        QAction* save = bar->addAction(Q(Text(9_text, Styles::DialogButton)));
        save->setObjectName(QStringLiteral("cmdSaveReport"));
        QObject::connect(save, &QAction::triggered, &preview, [&] { SaveReport(&preview, text, paper); });
    }
    preview.exec();
}

void PrintPicture(QWidget* parent, const QSize& size, const Draw& draw) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
    QPrintPreviewDialog preview(&printer, parent);
    preview.setObjectName(QStringLiteral("printPreview"));
    preview.resize(1000, 760);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&](QPrinter* target) {
        DrawAsVectors(*target, target->pageLayout().paintRectPixels(target->resolution()).size(), size, draw);
    });
    preview.exec();
}

}  // namespace lithmark
