#include "desktop/WindowStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/Sizes.h"
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

// A hand that is not steady meets it too.
QSize WindowStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                    const QWidget* widget) const {
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
        case CT_PushButton:
        case CT_CheckBox:
        case CT_RadioButton:
        case CT_ToolButton:
        case CT_ComboBox:
        case CT_LineEdit:
        case CT_SpinBox:
        case CT_TabBarTab:
            return size.expandedTo(QSize(sizes::kClicked, sizes::kClicked));
        default:
            return size;
    }
}

}  // namespace lithmark
