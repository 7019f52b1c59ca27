#include "desktop/WindowStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "render/drawings/Inks.h"

namespace lithmark {

WindowStyle::WindowStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

// Fusion takes a darker shade of the window for its edges, which a dark window swallows.
void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool box = element == PE_FrameLineEdit && !(option->state & State_HasFocus);
    const bool tick = element == PE_IndicatorCheckBox, ring = element == PE_IndicatorRadioButton;
    if (!box && !tick && !ring) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor edge = ColourOf(Ink::Edge, ThemeOf(option->palette));
    if (!(option->state & State_Enabled)) edge.setAlpha(120);
    painter->setPen(QPen(edge, 1));
    painter->setBrush(Qt::NoBrush);
    const QRectF line = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (ring)
        painter->drawEllipse(line);
    else
        painter->drawRoundedRect(line, 2, 2);
    painter->restore();
}

}  // namespace lithmark
