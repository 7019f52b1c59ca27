// lithmark-render: lithmark-cli with the toolkit that draws, to which it hands over what is a document or a picture.
#include <cmath>

#include "cli/Documents.h"
#include "cli/RunProgram.h"
#include "core/Session.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/FieldDocument.h"
#include "render/ReportDocument.h"
#include "render/StepTablesXlsx.h"
#include "render/TornadoDocument.h"
#include "render/figures/ReportFigures.h"
#include "services/texts/LanguageTexts.h"
#include "study/Tornado.h"

namespace lithmark {

namespace {

class RenderedDocuments : public DocumentWriter {
  public:
    std::string Report(const std::string& format, const std::string& text, bool figures) const override {
        const ReportPaper paper = PaperWithFigures(figures ? Figures::All : Figures::Drawing);
        if (format == "html") return ReportHtml(text, paper);
        return format == "rtf" ? ReportRtf(text, paper) : ReportPdf(text, paper);
    }

    std::string Chart(const std::string& format, const ChartArguments& chart) const override {
        if (format == "svg") return ChartSvg(chart);
        if (format == "png") return ChartPng(chart);
        return format == "xlsx" ? ChartXlsx(chart) : ChartPdf(chart);
    }

    std::string Contour(const std::string& format, BasContour& plot, int size) const override {
        if (format == "svg") return ContourSvg(plot, size);
        return format == "png" ? ContourPng(plot, size) : ContourPdf(plot, size);
    }

    std::string Field(const std::string& format, const BasContour& plot, const FieldPlot& field,
                      const std::optional<FieldLine>& section, int size) const override {
        const FieldPicture picture{plot, field, {.DrawGrid = false}, section};
        if (format == "svg") return FieldSvg(picture, size);
        return format == "png" ? FieldPng(picture, size) : FieldPdf(picture, size);
    }

    std::string TornadoOf(const std::string& format, const Tornado& tornado) const override {
        TornadoPicture picture;
        picture.Title = Text(908303_text, {{"|1", tornado.Result}}) + "   " + Session.ProjectName;
        picture.Axis = tornado.Result;
        picture.LowLegend = Text(908304_text);
        picture.HighLegend = Text(908305_text);
        picture.Middle = static_cast<double>(tornado.Middle);
        for (const Influence& influence : tornado.Influences)
            if (!IsMissing(influence.Swing()))
                picture.Bars.push_back({influence.Field + "   " + influence.Low + " … " + influence.High,
                                        static_cast<double>(influence.AtLow), static_cast<double>(influence.AtHigh)});
        if (!std::isfinite(picture.Middle) && !picture.Bars.empty()) picture.Middle = picture.Bars.front().AtLow;
        const auto kind = format == "svg" ? PictureKind::Svg : format == "png" ? PictureKind::Png : PictureKind::Pdf;
        return TornadoFile(kind, picture);
    }

    std::string StepTables(const std::vector<StepTable>& tables) const override { return StepTablesXlsx(tables); }

    std::string Table(const std::string& sheetName, const std::vector<std::vector<std::string>>& table) const override {
        return TableXlsx(sheetName, table);
    }
};

}  // namespace

}  // namespace lithmark

int main(int argc, char** argv) {
    const lithmark::RenderedDocuments documents;
    lithmark::UseDocuments(documents);
    return lithmark::RunProgram(argc, argv);
}
