// Words that a screen reader says at once, wherever the focus is: a wrong entry that is left, a word that comes and
// goes.
#pragma once

#include <QString>

class QWidget;

namespace lithmark {

// From now on the widget is an alert. Right after it was made (AccessibleRole.h).
void MakeAlert(QWidget& widget);
// Says the words. The widget is an alert, or a box that has told them in its description.
void SpeakAlert(QWidget& widget, const QString& words);

}  // namespace lithmark
