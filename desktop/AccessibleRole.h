// What a widget is for people who hear it, where that is another thing than its class tells.
#pragma once

#include <QAccessible>

class QWidget;

namespace lithmark {

// Belongs to a widget that nobody has heard of yet: right after it was made, before it has words.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace lithmark
