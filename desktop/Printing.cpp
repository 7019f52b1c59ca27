#include "desktop/Printing.h"

#include <QPrintPreviewDialog>
#include <QPrinter>

#include "render/ReportDocument.h"

namespace lithmark {

void PrintReport(QWidget* parent, const std::string& text, const std::string& fontName, int fontSize,
                 bool rightToLeft) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    QPrintPreviewDialog preview(&printer, parent);
    preview.setObjectName(QStringLiteral("printPreview"));
    preview.resize(900, 760);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { PaintReport(*target, text, fontName, fontSize, rightToLeft); });
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
