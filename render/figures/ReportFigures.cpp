#include "render/figures/ReportFigures.h"

#include <qcustomplot.h>

#include <memory>

#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/SansFont.h"
#include "render/figures/ProblemPicture.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::vector<CurveSet> CurveSetsOf(const ProblemRow& problem) {
    switch (problem.Curves) {
        case CurveFamily::TimeSettlement: {
            std::vector<CurveSet> sets = {CurveSet::Load, CurveSet::SuddenLoad, CurveSet::Building};
            if (Session.Ms) sets.push_back(CurveSet::Corrected);
            return sets;
        }
        case CurveFamily::MiddleRow:
            return {CurveSet::ContactPressure, CurveSet::RaftSettlement};
        case CurveFamily::Isochrones:
            return {CurveSet::Load};  // one fixed set, whatever is asked for
        case CurveFamily::None:
            break;
    }
    return {};
}

ReportFigure ChartFigure(const ChartArguments& chart) {
    static constexpr QSize kSize(642, 400);
    return {chart.ChartTitle, kSize, [chart](QCPPainter& painter) { PaintPlot(painter, chart, kSize); }};
}

ReportFigure ContourFigure(CurveSet result) {
    RequestContours(result);
    auto plot = std::make_shared<BasContour>();
    plot->Prepare();
    plot->LabelClasses(BasContour::Labels::Fine);  // in the unit of the caption
    return {Text(140017_text) + ": " + ContourTitle(), ContourSize(),
            [plot](QCPPainter& painter) { PaintContour(painter, *plot); }};
}

}  // namespace

std::vector<ReportFigure> DrawingFigures() {
    const KeptSession kept;
    const auto problem = std::make_shared<const ProblemPicture>();
    if (!problem->Exists()) return {};
    static constexpr QSize kSize(600, 400);
    return {{Text(911001_text), kSize, [problem](QCPPainter& painter) {
                 painter.setFont(SansFont(13));
                 problem->Paint(painter, kSize, Theme::Light);
             }}};
}

std::vector<ReportFigure> ResultFigures() {
    const KeptSession kept;
    std::vector<ReportFigure> figures;
    const ProblemRow& problem = ProblemInForce();
    for (const CurveSet set : CurveSetsOf(problem)) {
        RequestCurve({set, CurveUnit::InForce, CurveUnit::InForce});
        figures.push_back(ChartFigure(BuildChart()));
    }
    if (problem.HasContours())
        for (const CurveSet result : {CurveSet::RaftSettlement, CurveSet::ContactPressure})
            figures.push_back(ContourFigure(result));
    return figures;
}

bool ProblemHasFigures() {
    const ProblemRow& problem = ProblemInForce();
    return problem.Curves != CurveFamily::None || problem.HasContours();
}

ReportPaper PaperWithFigures(Figures figures) {
    ReportPaper paper = PaperInForce();
    paper.Figures = DrawingFigures();
    if (figures == Figures::All)
        for (ReportFigure& figure : ResultFigures()) paper.Figures.push_back(std::move(figure));
    return paper;
}

}  // namespace lithmark
