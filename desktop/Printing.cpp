#include "desktop/Printing.h"

#include <QBoxLayout>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>

#include "desktop/DocumentChoices.h"
#include "desktop/KeptSize.h"
#include "desktop/SaveReport.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "report/AfterReport.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void PrintReport(QWidget* parent, const std::string& text, const std::string& fontName, int fontSize,
                 bool rightToLeft) {
    QPrinter printer(QPrinter::HighResolution);
    SetReportPage(printer);
    std::string shown = text;
    ReportPaper paper = PaperChosen();
    printer.setDocName(Q(paper.Title));
    QPrintPreviewDialog preview(&printer, parent);
    preview.setObjectName(QStringLiteral("printPreview"));
    preview.resize(900, 760);
    KeepSize(preview);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { PaintReport(*target, shown, paper, fontName, fontSize, rightToLeft); });

    // What the toolkit's own dialog does not offer: the choices above the pages, and saving in its bar.
    auto* choices = new DocumentChoices(&preview);
    choices->OnChange = [&] {
        const bool drawn = UnderCommonStep([&] {
            paper = PaperChosen();
            shown = ReportWith(PartsChosen());
        });
        if (!drawn) {
            PartsChosen().Figures = false;
            return choices->Follow();
        }
        if (auto* pages = preview.findChild<QPrintPreviewWidget*>()) pages->updatePreview();
    };
    if (auto* column = qobject_cast<QBoxLayout*>(preview.layout()); column != nullptr && choices->Any())
        column->insertWidget(1, choices);
    else
        choices->hide();
    if (auto* bar = preview.findChild<QToolBar*>()) {
        bar->addSeparator();
        QAction* save = bar->addAction(Q(Text(9_text, Styles::DialogButton)));
        save->setObjectName(QStringLiteral("cmdSaveReport"));
        QObject::connect(save, &QAction::triggered, &preview, [&] {
            SaveReport(&preview);
            choices->Follow();
        });
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
    KeepSize(preview);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview, [&](QPrinter* target) {
        DrawAsVectors(*target, target->pageLayout().paintRectPixels(target->resolution()).size(), size, draw);
    });
    preview.exec();
}

}  // namespace lithmark
