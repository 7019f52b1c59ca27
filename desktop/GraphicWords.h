// Pictures for people who hear them: a drawing, a chart or a plot is a graphic with a name and a sentence.
#pragma once

#include <QString>

class QWidget;

namespace lithmark {

// From now on the widget is a graphic of this name.
void MakeGraphic(QWidget& widget, const QString& name);
// What the graphic shows. A change is told.
void TellGraphic(QWidget& widget, const QString& sentence);

}  // namespace lithmark
