// The path that a file dialog gives.
#pragma once

#include <QString>

class QFileDialog;

namespace lithmark {

// Runs a dialog that is set up; empty when it was cancelled. In the toolkit's own dialog the box of the name and the
// list of folders run from left to right in every language, as paths do; the desktop's own one, where there is one, is
// left to the desktop.
QString ChosenPath(QFileDialog& dialog);

}  // namespace lithmark
