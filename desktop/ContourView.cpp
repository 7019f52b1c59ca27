#include "desktop/ContourView.h"

#include <QMouseEvent>
#include <QPainter>

#include "render/ContourDocument.h"

namespace lithmark {

namespace {

constexpr int kLeast = 240, kUsual = 520, kLegendWidth = 130;

}  // namespace

ContourView::ContourView(frmContour& form, Shows shows, QWidget* parent) : QWidget(parent), form_(form), shows_(shows) {
    setLayoutDirection(Qt::LeftToRight);
    setMouseTracking(shows == Shows::Plot);
    setMinimumSize(shows == Shows::Plot ? kLeast : kLegendWidth, kLeast);
    setObjectName(shows == Shows::Plot ? QStringLiteral("plot") : QStringLiteral("legend"));
}

QSize ContourView::sizeHint() const {
    return {shows_ == Shows::Plot ? kUsual : kLegendWidth, kUsual};
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
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    PainterSurface surface(painter, QRectF(QPointF(0, 0), QSizeF(area.size())), image_.size(), font);
    if (shows_ == Shows::Plot)
        form_.Plot.Redraw(surface, form_.Drawn());
    else
        form_.Plot.DrawLegend(surface);
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
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void ContourView::mouseMoveEvent(QMouseEvent* event) {
    const QRect area = Area();
    const QPointF at = event->position() - QPointF(area.topLeft());
    if (!form_.Ready() || !QRectF(0, 0, area.width(), area.height()).contains(at)) return leaveEvent(nullptr);
    const WorldWindow& window = form_.Plot.Window;
    if (Over)
        Over(window.XMin + at.x() / area.width() * (window.XMax - window.XMin),
             window.YMax - at.y() / area.height() * (window.YMax - window.YMin));
}

void ContourView::leaveEvent(QEvent*) {
    if (Left) Left();
}

}  // namespace lithmark
