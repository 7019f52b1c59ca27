// The report in force saved as a document.
#pragma once

class QWidget;

namespace lithmark {

// Asks for a name, and for what the document is to have, and writes PDF, RTF, HTML or plain text; with the tables for a
// check by hand chosen, also those alone, as a spreadsheet or CSV. A failure is told.
void SaveReport(QWidget* parent);

}  // namespace lithmark
