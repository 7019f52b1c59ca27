#include "desktop/answer/StateMark.h"

#include <QColor>
#include <QPainter>

namespace lithmark {

QPixmap PixmapOf(StateMark mark, const QColor& ink, int size, double ratio) {
    QPixmap sign(QSize(size, size) * ratio);
    sign.setDevicePixelRatio(ratio);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, size / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [size](double x, double y) { return QPointF(x * size, y * size); };
    switch (mark) {
        case StateMark::None:
            break;
        case StateMark::Tick:
            painter.drawPolyline(QPolygonF({at(0.15, 0.55), at(0.4, 0.8), at(0.85, 0.2)}));
            break;
        case StateMark::Clock:
            painter.drawEllipse(at(0.5, 0.5), 0.4 * size, 0.4 * size);
            painter.drawPolyline(QPolygonF({at(0.5, 0.25), at(0.5, 0.5), at(0.68, 0.6)}));
            break;
        case StateMark::Exclamation:
            painter.drawLine(at(0.5, 0.15), at(0.5, 0.6));
            painter.drawPoint(at(0.5, 0.85));
            break;
    }
    return sign;
}

}  // namespace lithmark
