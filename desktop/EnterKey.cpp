#include "desktop/EnterKey.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace lithmark {

bool EnterClicks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!enter || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    if (qobject_cast<QPushButton*>(button) == nullptr && qobject_cast<QToolButton*>(button) == nullptr) return false;
    // A key that is held presses once.
    if (!key.isAutoRepeat()) button->click();
    return true;
}

}  // namespace lithmark
