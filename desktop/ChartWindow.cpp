#include "desktop/ChartWindow.h"

#include <qcustomplot.h>

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Session.h"
#include "files/GloableVariable.h"
#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

ChartWindow::ChartWindow(const ChartArguments& chart, QWidget* parent) : QDialog(parent), chart_(chart) {
    setObjectName(QStringLiteral("chartWindow"));
    setWindowTitle(Q(chart.ChartTitle));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* column = new QVBoxLayout(this);
    auto* title = new QLabel(Q(chart.ChartTitle), this);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    column->addWidget(title);

    auto* plot = new QCustomPlot(this);
    plot->setObjectName(QStringLiteral("plot"));
    plot->setLayoutDirection(Qt::LeftToRight);
    plot->setMinimumSize(640, 420);
    FillPlot(*plot, chart);
    plot->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    column->addWidget(plot, 1);

    auto* buttons = new QHBoxLayout;
    const auto add = [&](const std::string& caption, const char* name, auto&& slot) {
        auto* button = new QPushButton(Q(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
        return button;
    };
    add(Text(9_text, Styles::DialogButton), "cmdExport", [this] { Export(); });
    add(Text(26_text), "cmdOriginal", [this, plot] {
        FillPlot(*plot, chart_);
        plot->replot();
    });
    if (chart_.ShowContours) add(Text(140017_text), "cmdContours", [this] { chart_.ShowContours(); });
    buttons->addStretch(1);
    add(Text(6_text, Styles::Button), "cmdok", [this] { accept(); })->setDefault(true);
    column->addLayout(buttons);
    resize(860, 620);
}

void ChartWindow::Export() {
    const QString file =
        QFileDialog::getSaveFileName(this, windowTitle(), Q(Session.WorkDir + Session.WorkName + ".xlsx"),
                                     QStringLiteral("Excel (*.xlsx);;PDF (*.pdf);;SVG (*.svg);;PNG (*.png)"));
    if (file.isEmpty()) return;
    const QString ending = QFileInfo(file).suffix().toLower();
    try {
        SharedServices().SetCurrentFile(file.toStdString());
        WriteWholeFile(file.toStdString(), ending == QStringLiteral("pdf")   ? ChartPdf(chart_)
                                           : ending == QStringLiteral("svg") ? ChartSvg(chart_)
                                           : ending == QStringLiteral("png") ? ChartPng(chart_)
                                                                             : ChartXlsx(chart_));
    } catch (const Failure& failure) {
        FileError(failure);
    }
}

}  // namespace lithmark
