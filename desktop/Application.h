// The desktop program: what it needs of Qt, and its run from the command line to the end.
#pragma once

#include "texts/LanguageTable.h"

class QApplication;

namespace lithmark {

// Style, font and icon of all windows, and the decimal sign that the user's system writes.
void PrepareApplication(QApplication& application);
// The language of the user's system, English where the program has no texts in it.
Language SystemLanguage();

// Returns the exit code of the process.
int RunDesktop(int argc, char** argv);

}  // namespace lithmark
