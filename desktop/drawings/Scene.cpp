#include "desktop/drawings/Scene.h"

#include <QPainterPath>
#include <cmath>

namespace lithmark {

Scene::Scene(QPainter& painter, const QRect& area)
    : Painter(painter),
      scale_(std::min(area.width() / 12.8, area.height() / 10.4)),
      origin_(area.left() + area.width() * 0.48, area.top() + area.height() * 0.5 - 1.85 * scale_) {}

void Scene::Line(const QPointF& from, const QPointF& to, const QPen& pen) const {
    Painter.setPen(pen);
    Painter.drawLine(from, to);
}

void Scene::Arrow(const QPointF& from, const QPointF& to, const QPen& pen) const {
    Line(from, to, pen);
    const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
    const double size = (pen.widthF() > 2 ? 0.5 : 0.22) * scale_;
    QPolygonF head;
    head << to << to - QPointF(size * std::cos(angle - 0.4), size * std::sin(angle - 0.4))
         << to - QPointF(size * std::cos(angle + 0.4), size * std::sin(angle + 0.4));
    Painter.setBrush(pen.color());
    Painter.setPen(Qt::NoPen);
    Painter.drawPolygon(head);
}

void Scene::Polygon(const QPolygonF& polygon, const QPen& pen, const QBrush& brush) const {
    Painter.setPen(pen);
    Painter.setBrush(brush);
    Painter.drawPolygon(polygon);
}

void Scene::Symbol(const QPointF& place, const QString& text, const QColor& color) const {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(std::max(11, static_cast<int>(0.42 * scale_)));
    font.setItalic(true);
    Painter.setFont(font);
    Painter.setPen(color);
    Painter.drawText(QRectF(place.x() - 40, place.y() - 15, 80, 30), Qt::AlignCenter, text);
}

}  // namespace lithmark
