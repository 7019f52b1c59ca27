// The mark of the program.
#pragma once

class QPainter;
class QRectF;

namespace lithmark {

void DrawLogo(QPainter& painter, const QRectF& area);

}  // namespace lithmark
