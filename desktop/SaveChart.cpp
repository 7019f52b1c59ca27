#include "desktop/SaveChart.h"

#include <QWidget>

#include "contour/ChartTable.h"
#include "desktop/SaveDialog.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void SaveChart(QWidget* window, const ChartArguments& shown, const ChartLook& look, const ChartArguments& table) {
    ChartArguments plain = table;
    plain.SettlementsDown = shown.SettlementsDown;
    SaveAs(*window,
           {{QStringLiteral("PDF"), QStringLiteral("pdf")},
            {QStringLiteral("PNG"), QStringLiteral("png")},
            {QStringLiteral("SVG"), QStringLiteral("svg")},
            {Q(Text(910007_text)), QStringLiteral("xlsx")},
            {Q(Text(910008_text)), QStringLiteral("csv")}},
           [&](const QString& ending) {
               return ending == QStringLiteral("pdf")   ? ChartPdf(shown, look)
                      : ending == QStringLiteral("svg") ? ChartSvg(shown, look)
                      : ending == QStringLiteral("png") ? ChartPng(shown, look)
                      : ending == QStringLiteral("csv") ? ChartCsv(plain)
                                                        : ChartXlsx(plain);
           });
}

}  // namespace lithmark
