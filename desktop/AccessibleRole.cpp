#include "desktop/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace lithmark {

namespace {

constexpr const char* kRole = "accessibleRole";

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    const QVariant role = widget->property(kRole);
    if (!role.isValid()) return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
    [[maybe_unused]] static const bool known = [] {
        QAccessible::installFactory(InterfaceOf);
        return true;
    }();
    widget.setProperty(kRole, static_cast<int>(role));
}

}  // namespace lithmark
