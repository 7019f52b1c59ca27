// A window opens as large as it was left.
#pragma once

class QSize;
class QWidget;

namespace lithmark {

// Gives the window the size in which the user left the last one of its object name, as far as its screen has room, and
// keeps the size in which this one is left. A window that nobody resized keeps nothing. Called last where a window is
// made, which has the size of its own by then.
void KeepSize(QWidget& window);
// Resizes a window for what it shows now; such a size is none that the user gave it.
void ResizeForContent(QWidget& window, const QSize& size);

}  // namespace lithmark
