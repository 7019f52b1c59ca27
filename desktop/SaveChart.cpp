#include "desktop/SaveChart.h"

#include <QWidget>

#include "contour/ChartTable.h"
#include "desktop/SaveDialog.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void SaveChart(QWidget* window, const ChartArguments& chart, const ChartLook& look) {
    SaveAs(*window,
           {{QStringLiteral("PDF"), QStringLiteral("pdf")},
            {QStringLiteral("PNG"), QStringLiteral("png")},
            {QStringLiteral("SVG"), QStringLiteral("svg")},
            {Q(Text(910007_text)), QStringLiteral("xlsx")},
            {Q(Text(910008_text)), QStringLiteral("csv")}},
           [&](const QString& ending) {
               return ending == QStringLiteral("pdf")   ? ChartPdf(chart, look)
                      : ending == QStringLiteral("svg") ? ChartSvg(chart, look)
                      : ending == QStringLiteral("png") ? ChartPng(chart, look)
                      : ending == QStringLiteral("csv") ? ChartCsv(chart)
                                                        : ChartXlsx(chart);
           });
}

}  // namespace lithmark
