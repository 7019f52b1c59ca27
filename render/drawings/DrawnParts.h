// What several drawings have in common.
#pragma once

#include "render/drawings/Sketch.h"

namespace lithmark {

// Where the water of a clay layer goes: arrows up over it, and under it arrows down or rock, which lets none pass.
void DrawDrainage(Sketch& sketch, const QRectF& clay, bool down);

// Rock under a line.
void DrawRock(Sketch& sketch, const QRectF& room);

}  // namespace lithmark
