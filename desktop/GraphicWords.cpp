#include "desktop/GraphicWords.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace lithmark {

namespace {

constexpr const char* kGraphic = "graphic";

QAccessibleInterface* GraphicOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(kGraphic).toBool()) return nullptr;
    return new QAccessibleWidget(widget, QAccessible::Graphic);
}

}  // namespace

void MakeGraphic(QWidget& widget, const QString& name) {
    static const bool known = [] {
        QAccessible::installFactory(GraphicOf);
        return true;
    }();
    widget.setProperty(kGraphic, known);
    widget.setAccessibleName(name);
}

void TellGraphic(QWidget& widget, const QString& sentence) {
    if (widget.accessibleDescription() == sentence) return;
    widget.setAccessibleDescription(sentence);
    QAccessibleEvent changed(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

}  // namespace lithmark
