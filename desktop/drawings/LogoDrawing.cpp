// The mark of the program, where a form shows it.
#include "desktop/Icons.h"
#include "desktop/drawings/Drawings.h"

namespace lithmark {

namespace {

void Draw(QPainter& painter, const QRect& area, const std::string&) {
    DrawLogo(painter, area);
}

const DrawingNamed kDrawing("logo", Draw);

}  // namespace

}  // namespace lithmark
