// The program's own icons, drawn by vectors so that they are crisp at every size.
#pragma once

#include <QIcon>
#include <string>

namespace lithmark {

QIcon ProgramIcon();
// The icon of a menu entry by its key; a null icon where it has none.
QIcon IconOf(const std::string& key);
// Each problem has one of its own; any other number has a sheet of paper.
QIcon IconOfProblem(int problemType);

}  // namespace lithmark
