#include "desktop/ContourView.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/GraphicWords.h"
#include "render/ContourDocument.h"
#include "render/FieldDocument.h"
#include "render/QtText.h"
#include "render/SansFont.h"

namespace lithmark {

namespace {

constexpr int kLeast = 240, kUsual = 520, kLegendWidth = 84, kLegendHeight = 400;
constexpr int kLegendRoom = 70;  // what a legend's boxes and gaps take beside its texts
constexpr double kTextShare = 0.85;

}  // namespace

ContourView::ContourView(frmContour& form, Shows shows, QWidget* parent) : QWidget(parent), form_(form), shows_(shows) {
    setLayoutDirection(Qt::LeftToRight);
    setMouseTracking(shows == Shows::Plot);
    setMinimumSize(shows == Shows::Plot ? kLeast : kLegendWidth, kLeast);
    setObjectName(shows == Shows::Plot ? QStringLiteral("plot") : QStringLiteral("legend"));
    if (shows == Shows::Legend) setMaximumHeight(kLegendHeight);
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
        width += kLegendRoom;
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
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
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
    if (sectionFrom_) {
        form_.SetSection({*sectionFrom_, *place});
        update();
        if (SectionLaid) SectionLaid();
    }
    if (Over) Over(place->X, place->Y);
}

void ContourView::mouseReleaseEvent(QMouseEvent*) {
    sectionFrom_.reset();
}

void ContourView::leaveEvent(QEvent*) {
    if (Left) Left();
}

}  // namespace lithmark
