// The program's own icons, drawn by vectors so that they are crisp at every size.
#pragma once

#include <QIcon>
#include <string>

class QPainter;
class QRectF;

namespace lithmark {

// The mark of the program: soil layers under a footing.
void DrawLogo(QPainter& painter, const QRectF& area);
QIcon ProgramIcon();
// The icon of a menu entry by its key; a null icon where it has none.
QIcon IconOf(const std::string& key);

}  // namespace lithmark
