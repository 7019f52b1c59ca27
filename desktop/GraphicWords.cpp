#include "desktop/GraphicWords.h"

#include <QWidget>

#include "desktop/AccessibleRole.h"

namespace lithmark {

void MakeGraphic(QWidget& widget, const QString& name) {
    SetAccessibleRole(widget, QAccessible::Graphic);
    widget.setAccessibleName(name);
}

void TellGraphic(QWidget& widget, const QString& sentence) {
    if (widget.accessibleDescription() == sentence) return;
    widget.setAccessibleDescription(sentence);
    QAccessibleEvent changed(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace lithmark
