// Words of a widget in an ink of their own, which follows light and dark windows.
#pragma once

#include <QPalette>

#include "render/drawings/Inks.h"

class QWidget;

namespace lithmark {

// From now on, and as the windows change between light and dark, the widget's words have this ink.
void SetInk(QWidget& widget, Ink ink, QPalette::ColorRole role = QPalette::WindowText);

}  // namespace lithmark
