#include "desktop/study/FieldChartView.h"

#include <qcustomplot.h>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "desktop/ChartView.h"
#include "desktop/GraphicWords.h"
#include "desktop/PaneKeys.h"
#include "desktop/Sizes.h"
#include "desktop/study/StudySubject.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "render/figures/FieldChartDocument.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

FieldChartView::FieldChartView(QWidget* parent)
    : QWidget(parent),
      plot_(new QCustomPlot(this)),
      cross_(new QCPItemTracer(plot_)),
      under_(WordsLabel(this, "lblUnder", 1)) {
    MakeGraphic(*plot_, Q(Text(140017_text)));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(sizes::kRowGap);
    plot_->setObjectName(QStringLiteral("fieldChart"));
    plot_->setLayoutDirection(Qt::LeftToRight);
    plot_->setMouseTracking(true);
    plot_->setFocusPolicy(Qt::StrongFocus);
    plot_->installEventFilter(this);
    PaneKeys::MakePane(*plot_);
    cross_->setStyle(QCPItemTracer::tsCrosshair);
    cross_->setVisible(false);
    column->addWidget(plot_, 1);
    column->addWidget(under_);
}

void FieldChartView::Show(std::optional<FieldChart> chart, const std::string& words, Under under) {
    chart_ = std::move(chart);
    words_ = words;
    wordsUnder_ = std::move(under);
    plot_->setVisible(chart_.has_value());
    if (chart_) plot_->setAccessibleName(Q(chart_->Title));
    Leave();
    Draw();
}

void FieldChartView::Draw() {
    if (!chart_) return;
    FillFieldChart(*plot_, *chart_, WindowInks(palette()));
    FitTitles();
    cross_->setPen(QPen(ColourOf(Ink::Point, Theme::Light), 1));
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

// Of the values that go up and of the scale beside them.
void FieldChartView::FitTitles() {
    FitUprightTitle(*plot_->yAxis, chart_->YTitle);
    if (auto* scale = qobject_cast<QCPColorScale*>(plot_->plotLayout()->element(0, 1)))
        FitUprightTitle(*scale->axis(), chart_->ValueTitle);
}

void FieldChartView::GoTo(const FieldPoint& place) {
    place_ = place;
    const QString text = Q(wordsUnder_(place));
    under_->setText((LanguageTexts().RightToLeft() ? QString(QChar(0x200F)) : QString()) + text);
    TellGraphic(*plot_, text);
    cross_->position->setCoords(place.X, place.Y);
    cross_->setVisible(true);
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

void FieldChartView::Leave() {
    place_.reset();
    under_->setText(chart_ ? Q(Text(913258_text)) : QString());
    TellGraphic(*plot_, Q(words_));
    cross_->setVisible(false);
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

// From where the user stands, or from the middle.
bool FieldChartView::Walk(int key) {
    constexpr double kWalkSteps = 20;
    const bool across = key == Qt::Key_Left || key == Qt::Key_Right, up = key == Qt::Key_Up || key == Qt::Key_Down;
    if (!across && !up) return false;
    const FieldChart& chart = *chart_;
    FieldPoint at = place_          ? *place_
                    : chart.Present ? *chart.Present
                                    : FieldPoint{(chart.Left + chart.Right) / 2, (chart.Bottom + chart.Top) / 2};
    const double way = key == Qt::Key_Right || key == Qt::Key_Up ? 1 : -1;
    if (place_ && across)
        at.X = std::clamp(at.X + way * (chart.Right - chart.Left) / kWalkSteps, chart.Left, chart.Right);
    if (place_ && up) at.Y = std::clamp(at.Y + way * (chart.Top - chart.Bottom) / kWalkSteps, chart.Bottom, chart.Top);
    GoTo(at);
    return true;
}

bool FieldChartView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == plot_ && chart_) {
        if (event->type() == QEvent::MouseMove) {
            const QPointF at = static_cast<QMouseEvent*>(event)->position();
            if (plot_->axisRect()->rect().contains(at.toPoint()))
                GoTo({plot_->xAxis->pixelToCoord(at.x()), plot_->yAxis->pixelToCoord(at.y())});
            else
                Leave();
        }
        if (event->type() == QEvent::Resize) Draw();
        if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) Leave();
        if (event->type() == QEvent::KeyPress && Walk(static_cast<QKeyEvent*>(event)->key())) return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FieldChartView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Draw();
}

}  // namespace lithmark
