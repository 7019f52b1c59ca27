#include "desktop/ChartView.h"

#include <algorithm>
#include <cmath>

#include "render/QtText.h"
#include "render/drawings/Inks.h"

namespace lithmark {

namespace {

constexpr double kZoomStep = 1.25;
constexpr int kClickTravel = 4;  // pixels; farther is a pan

template <typename List>
bool SameItems(const List& one, const List& other) {
    return std::ranges::equal(one.Items(), other.Items());
}

// What is drawn; the table's head and what a command would show besides are left out.
bool SameCurves(const ChartArguments& one, const ChartArguments& other) {
    return one.Curves == other.Curves && one.LastRow == other.LastRow && one.LastColumn == other.LastColumn &&
           one.XTitle == other.XTitle && one.YTitle == other.YTitle && one.ChartTitle == other.ChartTitle &&
           one.SettlementsDown == other.SettlementsDown && one.XStart == other.XStart && one.XEnd == other.XEnd &&
           SameItems(one.Legends, other.Legends) && SameItems(one.LineStyles, other.LineStyles) &&
           SameItems(one.Cells, other.Cells);
}

}  // namespace

ChartView::ChartView(const ChartArguments& chart, QWidget* parent)
    : QCustomPlot(parent), chart_(chart), reading_(std::make_unique<ChartReading>(chart)) {
    setObjectName(QStringLiteral("plot"));
    setLayoutDirection(Qt::LeftToRight);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(360, 220);
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    look_.Legend = false;
    legend->setVisible(false);
    Fill();
}

void ChartView::ShowChart(const ChartArguments& chart) {
    // The same curves keep their marks and their zoom.
    if (SameCurves(chart, chart_)) return;
    chart_ = chart;
    reading_ = std::make_unique<ChartReading>(chart);
    look_.Hidden.clear();
    row_.reset();
    a_.reset();
    b_.reset();
    Whole();
    if (OnReading) OnReading();
}

ChartInks WindowInks(const QPalette& palette) {
    const Theme theme = ThemeOf(palette);
    const auto ink = [theme](Ink name) { return ColourOf(name, theme); };
    return {ink(Ink::Base),
            ink(Ink::Text),
            ink(Ink::Edge),
            ink(Ink::Grid),
            {ink(Ink::Curve1), ink(Ink::Curve2), ink(Ink::Curve3), ink(Ink::Curve4)}};
}

void ChartView::Fill() {
    look_.Inks = WindowInks(palette());
    FillPlot(*this, chart_, look_);
    FitUprightTitle(*yAxis, AxesChanged(chart_) ? chart_.XTitle : chart_.YTitle);
    DrawReading();
}

void ChartView::resizeEvent(QResizeEvent* event) {
    QCustomPlot::resizeEvent(event);
    FitUprightTitle(*yAxis, AxesChanged(chart_) ? chart_.XTitle : chart_.YTitle);
    replot(rpQueuedReplot);
}

void ChartView::ShowCurve(int curve, bool on) {
    look_.Hidden.resize(static_cast<std::size_t>(chart_.Curves), false);
    look_.Hidden[static_cast<std::size_t>(curve - 1)] = !on;
    reading_->Show(curve, on);
    for (std::optional<ChartMark>* mark : {&a_, &b_})
        if (*mark && (*mark)->Curve == curve && !on) mark->reset();
    plottable(curve - 1)->setVisible(on);
    Told();
}

void ChartView::Turn(bool down) {
    chart_.SettlementsDown = down;
    look_.Horizontal.reset();
    look_.Vertical.reset();
    Fill();
}

void ChartView::Zoom(double by) {
    for (QCPAxis* axis : {xAxis, yAxis}) axis->scaleRange(1 / by);
    replot(rpQueuedReplot);
}

void ChartView::Whole() {
    look_.Horizontal.reset();
    look_.Vertical.reset();
    Fill();
}

ChartLook ChartView::Look() const {
    ChartLook look = look_;
    look.Legend = true;
    look.Inks = {};
    look.Horizontal = {xAxis->range().lower, xAxis->range().upper};
    look.Vertical = {yAxis->range().lower, yAxis->range().upper};
    return look;
}

void ChartView::Walk(int by) {
    if (!row_) {
        const QCPRange seen = PlaceAxis().range();
        row_ = reading_->NearestRow(by > 0 ? seen.lower : seen.upper);
    } else {
        row_ = reading_->NextPlace(*row_, by);
    }
    walked_ = true;
    if (row_) {
        // What is walked to comes into sight.
        const double x = reading_->X(*row_);
        QCPRange seen = PlaceAxis().range();
        if (!seen.contains(x)) PlaceAxis().setRange(seen + (x - (x < seen.lower ? seen.lower : seen.upper)));
    }
    Told();
}

void ChartView::Mark(bool first) {
    if (!row_) return;
    for (int curve = 1; curve <= reading_->Curves(); ++curve) {
        if (!reading_->Shown(curve) || std::isnan(reading_->Y(*row_, curve))) continue;
        (first ? a_ : b_) = ChartMark{*row_, curve};
        break;
    }
    Told();
}

double ChartView::PlaceAt(const QPointF& at) const {
    return PlaceAxis().pixelToCoord(PlaceAxis().orientation() == Qt::Horizontal ? at.x() : at.y());
}

double ChartView::ValueAt(const QPointF& at) const {
    return ValueAxis().pixelToCoord(ValueAxis().orientation() == Qt::Horizontal ? at.x() : at.y());
}

void ChartView::MarkAt(const QPointF& at, bool first) {
    const auto length = [this](const QCPAxis& axis) {
        const QSize size = axisRect()->size();
        return axis.range().size() / std::max(1, axis.orientation() == Qt::Horizontal ? size.width() : size.height());
    };
    const auto point = reading_->NearestPoint(PlaceAt(at), ValueAt(at), length(PlaceAxis()), length(ValueAxis()));
    if (!point) return;
    (first ? a_ : b_) = point;
    row_ = point->Row;
    Told();
}

QPointF ChartView::Place(const ChartMark& mark) const {
    const double x = reading_->X(mark.Row), y = reading_->Y(mark.Row, mark.Curve);
    return AxesChanged(chart_) ? QPointF(y, x) : QPointF(x, y);
}

void ChartView::Told() {
    DrawReading();
    if (OnReading) OnReading();
}

// A line at the place that is read, and the two marks.
void ChartView::DrawReading() {
    clearItems();
    const ChartInks& inks = look_.Inks;
    if (row_) {
        auto* line = new QCPItemStraightLine(this);
        const double x = reading_->X(*row_);
        line->setPen(QPen(inks.Axes, 1, Qt::DashLine));
        const bool upright = PlaceAxis().orientation() == Qt::Horizontal;
        line->point1->setCoords(upright ? QPointF(x, yAxis->range().lower) : QPointF(xAxis->range().lower, x));
        line->point2->setCoords(upright ? QPointF(x, yAxis->range().upper) : QPointF(xAxis->range().upper, x));
    }
    for (const auto& [mark, letter] : {std::pair(a_, "A"), {b_, "B"}}) {
        if (!mark) continue;
        auto* text = new QCPItemText(this);
        text->setText(QString::fromLatin1(letter));
        text->position->setCoords(Place(*mark));
        text->setPositionAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        QFont bold = font();
        bold.setBold(true);
        text->setFont(bold);
        text->setColor(inks.Text);
        text->setPadding(QMargins(3, 0, 3, 6));
        auto* ring = new QCPItemTracer(this);
        ring->position->setCoords(Place(*mark));
        ring->setStyle(QCPItemTracer::tsCircle);
        ring->setSize(9);
        ring->setPen(QPen(inks.Text, 2));
    }
    replot(rpQueuedReplot);
}

void ChartView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->position();
    QCustomPlot::mousePressEvent(event);
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    QCustomPlot::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton) return;
    walked_ = false;
    const bool inside = axisRect()->rect().contains(event->position().toPoint());
    const std::optional<int> row = inside ? reading_->NearestRow(PlaceAt(event->position())) : std::nullopt;
    if (row == row_) return;
    row_ = row;
    Told();
}

void ChartView::mouseReleaseEvent(QMouseEvent* event) {
    QCustomPlot::mouseReleaseEvent(event);
    const bool click = pressed_ && (event->position() - *pressed_).manhattanLength() <= kClickTravel;
    pressed_.reset();
    if (click && event->button() == Qt::LeftButton && axisRect()->rect().contains(event->position().toPoint()))
        MarkAt(event->position(), !event->modifiers().testFlag(Qt::ShiftModifier));
}

void ChartView::mouseDoubleClickEvent(QMouseEvent*) {
    Whole();
}

void ChartView::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    if (walked_) return;
    row_.reset();
    Told();
}

void ChartView::focusOutEvent(QFocusEvent* event) {
    QCustomPlot::focusOutEvent(event);
    walked_ = false;
}

void ChartView::changeEvent(QEvent* event) {
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Fill();
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    switch (plain ? event->key() : 0) {
        case Qt::Key_Plus:
            return Zoom(kZoomStep);
        case Qt::Key_Minus:
            return Zoom(1 / kZoomStep);
        case Qt::Key_0:
        case Qt::Key_Home:
            return Whole();
        // Along the places, which run downward where the axes changed.
        case Qt::Key_Left:
        case Qt::Key_Up:
            return Walk(-1);
        case Qt::Key_Right:
        case Qt::Key_Down:
            return Walk(1);
        case Qt::Key_A:
            return Mark(true);
        case Qt::Key_B:
            return Mark(false);
        default:
            return QCustomPlot::keyPressEvent(event);
    }
}

}  // namespace lithmark
