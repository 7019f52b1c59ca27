// The mark of the program, where a form shows it.
#include "desktop/Icons.h"
#include "desktop/drawings/Drawings.h"
#include "desktop/drawings/Sketch.h"

namespace lithmark {

namespace {

void Draw(Sketch& sketch) {
    DrawLogo(sketch.Painter, sketch.Area.toRect());
}

const DrawingNamed kDrawing("logo", Draw);

}  // namespace

}  // namespace lithmark
