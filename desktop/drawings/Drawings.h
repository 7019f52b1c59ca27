// The drawings that stand beside a problem's fields, found by the name that the form's picture gives. A drawing makes
// itself known in its own file: `const DrawingNamed kDrawing("stress", Draw);`.
#pragma once

#include <QRect>
#include <string>

class QPainter;

namespace lithmark {

// `variant` is the picture's word for which form of the problem is drawn; empty when none is chosen.
using DrawingFunction = void (*)(QPainter& painter, const QRect& area, const std::string& variant);

struct DrawingNamed {
    DrawingNamed(const char* name, DrawingFunction draw);
};

// Null when there is no drawing of the name.
DrawingFunction FindDrawing(const std::string& name);

}  // namespace lithmark
