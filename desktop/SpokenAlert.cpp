#include "desktop/SpokenAlert.h"

#include <QWidget>

#include "desktop/AccessibleRole.h"

namespace lithmark {

void MakeAlert(QWidget& widget) {
    SetAccessibleRole(widget, QAccessible::AlertMessage);
}

void SpeakAlert(QWidget& widget, const QString& words) {
    const auto tell = [&widget](QAccessible::Event what) {
        QAccessibleEvent event(&widget, what);
        QAccessible::updateAccessibility(&event);
    };
    const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&widget);
    if (heard != nullptr && heard->role() == QAccessible::AlertMessage) {
        widget.setAccessibleName(words);
        // Linux passes the event of an alert on to nobody; there it is one that comes into sight.
        tell(QAccessible::ObjectShow);
    }
    tell(QAccessible::Alert);
}

}  // namespace lithmark
