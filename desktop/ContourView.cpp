#include "desktop/ContourView.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/GraphicWords.h"
#include "desktop/PaneKeys.h"
#include "render/ContourDocument.h"
#include "render/FieldDocument.h"
#include "render/QtText.h"
#include "render/SansFont.h"
#include "render/drawings/Inks.h"

namespace lithmark {

namespace {

constexpr int kLeast = 240, kUsual = 520, kLegendWidth = 84, kLegendHeight = 400;
constexpr int kLegendGaps = 70;  // what a legend's boxes and gaps take beside its texts
constexpr double kTextShare = 0.85;

}  // namespace

ContourView::ContourView(frmContour& form, Shows shows, QWidget* parent) : QWidget(parent), form_(form), shows_(shows) {
    setLayoutDirection(Qt::LeftToRight);
    setMouseTracking(shows == Shows::Plot);
    setMinimumSize(shows == Shows::Plot ? kLeast : kLegendWidth, kLeast);
    setObjectName(shows == Shows::Plot ? QStringLiteral("plot") : QStringLiteral("legend"));
    if (shows == Shows::Legend) setMaximumHeight(kLegendHeight);
    if (shows == Shows::Plot) {
        setFocusPolicy(Qt::StrongFocus);
        PaneKeys::MakePane(*this);
    }
    MakeGraphic(*this, shows == Shows::Legend ? Q(Text(913604_text)) : QString());
}

QSize ContourView::sizeHint() const {
    return shows_ == Shows::Plot ? QSize(kUsual, kUsual) : QSize(minimumWidth(), kLegendHeight);
}

void ContourView::FitLegend() {
    if (!form_.Ready()) return;
    const QFontMetrics metrics(SansFont(kPlotTextPixels));
    int width = 0;
    if (form_.ShowsField()) {
        for (const double limit : form_.Field().Limits())
            width = std::max(width, metrics.horizontalAdvance(Q(form_.Field().LimitText(limit))));
        width += kLegendGaps;
    } else {
        for (const std::string& label : form_.Plot.ClassLabel)
            width = std::max(width, metrics.horizontalAdvance(Q(label)));
        width = qRound(width / kTextShare) + 12;
    }
    // The place of the picture too, which would take a share of the window.
    for (QWidget* widget : {static_cast<QWidget*>(this), parentWidget()})
        widget->setFixedWidth(std::max(width, kLegendWidth));
}

void ContourView::Tell() {
    QString caption = Q(form_.fraResult.Caption);
    while (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
    if (shows_ == Shows::Plot) setAccessibleName(caption);
    if (!form_.Ready()) return TellGraphic(*this, QString());
    const FieldPlot& field = form_.Field();
    if (shows_ == Shows::Plot)
        return TellGraphic(*this, Q(Text(913602_text, {{"|1", caption.toStdString()},
                                                       {"|2", field.ValueText(field.Least())},
                                                       {"|3", field.ValueText(field.Greatest())},
                                                       {"|4", frmContour::UnitShown()}})));
    QStringList labels;
    if (form_.ShowsField())
        for (const double limit : field.Limits()) labels.append(Q(field.LimitText(limit)));
    else
        for (const std::string& label : form_.Plot.ClassLabel) labels.append(Q(label));
    TellGraphic(*this, labels.join(QStringLiteral("; ")));
}

QRect ContourView::Area() const {
    if (shows_ == Shows::Legend) return rect();
    const int side = std::min(width(), height());
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

void ContourView::Draw() {
    const QRect area = Area();
    const double scale = devicePixelRatioF();
    image_ = QImage(area.size() * scale, QImage::Format_RGB32);
    image_.setDevicePixelRatio(scale);
    image_.fill(Qt::white);
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole(QPointF(0, 0), QSizeF(area.size()));
    if (form_.ShowsField()) {
        if (shows_ == Shows::Plot)
            DrawField(painter, whole, {form_.Plot, form_.Field(), form_.Drawn(), std::nullopt});
        else
            DrawFieldLegend(painter, whole.adjusted(6, 4, -2, -4), form_.Field());
    } else {
        PainterSurface surface(painter, whole, image_.size(), SansFont(kPlotTextPixels));
        if (shows_ == Shows::Plot)
            form_.Plot.Redraw(surface, form_.Drawn());
        else
            form_.Plot.DrawLegend(surface);
    }
    drawing_ = form_.Drawings();
}

void ContourView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = Area();
    if (!form_.Ready()) {
        painter.fillRect(area, Qt::white);
        return;
    }
    if (drawing_ != form_.Drawings() || image_.size() != area.size() * devicePixelRatioF()) Draw();
    painter.drawImage(area.topLeft(), image_);
    if (shows_ == Shows::Legend) return;
    if (const auto section = form_.Section()) DrawSection(painter, area, form_.Plot.Window, *section);
    DrawCross(painter);
    painter.setPen(hasFocus() ? QPen(ColourOf(Ink::Selection, ThemeOf(palette())), 2)
                              : QPen(palette().color(QPalette::Mid)));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

// Where the keys have led: on the light sheet of the plot in any window.
void ContourView::DrawCross(QPainter& painter) const {
    if (!walked_) return;
    const QRect area = Area();
    const WorldWindow& window = form_.Plot.Window;
    const double x = area.left() + (walked_->X - window.XMin) / (window.XMax - window.XMin) * area.width();
    const double y = area.top() + (window.YMax - walked_->Y) / (window.YMax - window.YMin) * area.height();
    painter.save();
    painter.setClipRect(area);
    for (const auto& [ink, width] : {std::pair(Ink::Base, 3), {Ink::Text, 1}}) {
        painter.setPen(QPen(ColourOf(ink, Theme::Light), width));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    }
    painter.restore();
}

std::optional<FieldPoint> ContourView::PlaceAt(const QPointF& at) const {
    const QRect area = Area();
    if (!form_.Ready() || !QRectF(area).contains(at)) return std::nullopt;
    const WorldWindow& window = form_.Plot.Window;
    return FieldPoint{window.XMin + (at.x() - area.left()) / area.width() * (window.XMax - window.XMin),
                      window.YMax - (at.y() - area.top()) / area.height() * (window.YMax - window.YMin)};
}

void ContourView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && form_.Section()) sectionFrom_ = PlaceAt(event->position());
}

void ContourView::mouseMoveEvent(QMouseEvent* event) {
    const auto place = PlaceAt(event->position());
    if (!place) return leaveEvent(nullptr);
    if (std::exchange(walked_, std::nullopt)) update();
    if (sectionFrom_) Lay({*sectionFrom_, *place});
    if (Over) Over(place->X, place->Y);
}

void ContourView::Lay(const FieldLine& section) {
    form_.SetSection(section);
    update();
    if (SectionLaid) SectionLaid();
}

void ContourView::mouseReleaseEvent(QMouseEvent*) {
    sectionFrom_.reset();
}

// What the keys have led to stays until the focus goes.
void ContourView::leaveEvent(QEvent*) {
    if (Left && !walked_) Left();
}

// From the middle of what is seen, in steps of a twentieth of it.
bool ContourView::Walk(int key) {
    constexpr double kSteps = 20;
    const bool across = key == Qt::Key_Left || key == Qt::Key_Right, up = key == Qt::Key_Up || key == Qt::Key_Down;
    if (!across && !up) return false;
    const WorldWindow& window = form_.Plot.Window;
    const double width = window.XMax - window.XMin, height = window.YMax - window.YMin;
    const double way = key == Qt::Key_Right || key == Qt::Key_Up ? 1 : -1;
    FieldPoint at = walked_.value_or(FieldPoint{window.XMin + width / 2, window.YMin + height / 2});
    if (walked_ && across) at.X += way * width / kSteps;
    if (walked_ && up) at.Y += way * height / kSteps;
    walked_ = FieldPoint{std::clamp<double>(at.X, window.XMin, window.XMax),
                         std::clamp<double>(at.Y, window.YMin, window.YMax)};
    update();
    if (Over) Over(walked_->X, walked_->Y);
    return true;
}

bool ContourView::SetEnd(bool first) {
    const auto section = form_.Section();
    if (!walked_ || !section) return false;
    Lay(first ? FieldLine{*walked_, section->To} : FieldLine{section->From, *walked_});
    return true;
}

void ContourView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const int key = plain && form_.Ready() ? event->key() : 0;
    if (Walk(key)) return;
    if ((key == Qt::Key_A || key == Qt::Key_B) && SetEnd(key == Qt::Key_A)) return;
    QWidget::keyPressEvent(event);
}

void ContourView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ContourView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
    if (!std::exchange(walked_, std::nullopt)) return;
    if (Left) Left();
    Tell();
}

}  // namespace lithmark
