#include "desktop/study/SaveTable.h"

#include <QWidget>
#include <functional>

#include "core/Session.h"
#include "desktop/SaveDialog.h"
#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void SaveCsvFile(QWidget& window, const std::string& csv) {
    SaveAs(window, {{Q(Text(910008_text)), QStringLiteral("csv")}}, [&](const QString&) { return csv; });
}

void SaveSheetFile(QWidget& window, const std::vector<std::vector<std::string>>& table) {
    SaveAs(window, {{Q(Text(910007_text)), QStringLiteral("xlsx")}},
           [&](const QString&) { return TableXlsx(Session.ProjectName, table); });
}

namespace {

void SavePicture(QWidget& window, const std::function<std::string(PictureKind)>& file) {
    SaveAs(window,
           {{QStringLiteral("PDF"), QStringLiteral("pdf")},
            {QStringLiteral("PNG"), QStringLiteral("png")},
            {QStringLiteral("SVG"), QStringLiteral("svg")}},
           [&](const QString& ending) {
               if (ending == QStringLiteral("svg")) return file(PictureKind::Svg);
               return file(ending == QStringLiteral("png") ? PictureKind::Png : PictureKind::Pdf);
           });
}

}  // namespace

void SaveFieldChartFile(QWidget& window, const FieldChart& chart) {
    SavePicture(window, [&](PictureKind kind) { return FieldChartFile(kind, chart); });
}

void SaveTornadoFile(QWidget& window, const TornadoPicture& picture) {
    SavePicture(window, [&](PictureKind kind) { return TornadoFile(kind, picture); });
}

}  // namespace lithmark
