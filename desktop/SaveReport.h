// A report saved as a document.
#pragma once

#include <string>

class QWidget;

namespace lithmark {

// Asks for a name and writes PDF, RTF, HTML or plain text. A name without an ending takes the one of the chosen kind. A
// failure is told.
void SaveReport(QWidget* parent, const std::string& report);

}  // namespace lithmark
