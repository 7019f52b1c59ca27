// A report saved as a document.
#pragma once

#include <string>

class QWidget;

namespace lithmark {

// Asks for a name and writes PDF, RTF, HTML or plain text; with the tables for a check by hand also those alone, as a
// spreadsheet or CSV. A name without an ending takes the one of the chosen kind. A failure is told.
void SaveReport(QWidget* parent, const std::string& report, bool withTables = false);

}  // namespace lithmark
