#include "render/figures/ReportFigures.h"

#include <qcustomplot.h>

#include <memory>

#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/drawings/Drawings.h"
#include "render/drawings/Sketch.h"
#include "services/texts/LanguageTexts.h"
#include "ui/ProblemForms.h"

namespace lithmark {

namespace {

// What is drawn may ask Session for something else than what the user has chosen; the record is put back.
class KeptSession {
  public:
    KeptSession() : kept_(Session) {}
    ~KeptSession() { Session = std::move(kept_); }
    KeptSession(const KeptSession&) = delete;
    KeptSession& operator=(const KeptSession&) = delete;

  private:
    SessionRecord kept_;
};

// A form that nobody sees, and its drawing.
struct DrawnProblem {
    explicit DrawnProblem(std::unique_ptr<ProblemForm> form) : Form(std::move(form)) {
        Form->ShowInForce();
        for (const Control* control : Form->Controls())
            if (control->Kind == ControlKind::Picture && control->Shows != nullptr) Picture = control;
        if (Picture == nullptr) return;
        Function = FindDrawing(Picture->Drawing);
        Drawn = std::make_unique<DrawnForm>(*Picture);
    }
    void Paint(QPainter& painter, const QSize& size) const {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(13);
        painter.setFont(font);
        painter.setLayoutDirection(Qt::LeftToRight);
        double scale = 0;
        Sketch sketch(painter, QRectF(QPointF(0, 0), QSizeF(size)), *Drawn, Theme::Light, scale);
        Function(sketch);
        sketch.Finish();
    }

    std::unique_ptr<ProblemForm> Form;
    const Control* Picture = nullptr;
    DrawingFunction Function = nullptr;
    std::unique_ptr<DrawnForm> Drawn;
};

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
    auto form = MakeProblemForm(Session.ProblemType);
    if (form == nullptr) return {};
    const auto problem = std::make_shared<const DrawnProblem>(std::move(form));
    if (problem->Function == nullptr) return {};
    static constexpr QSize kSize(600, 400);
    return {{Text(911001_text), kSize, [problem](QCPPainter& painter) { problem->Paint(painter, kSize); }}};
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
