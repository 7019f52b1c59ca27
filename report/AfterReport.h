// What may stand behind a report as text of the same kind: the box of notices and the tables for a check by hand. The
// report itself is never changed.
#pragma once

#include <string>

namespace lithmark {

// Lines with CR LF line ends, an empty one first; empty when there is nothing to tell.
std::string NoticeBox();

// Heading and tables, in the same form. Without a table: a line that says so.
std::string StepTablesText();

// What a document has besides the report.
struct DocumentParts {
    bool Notices = true;   // in a box
    bool Tables = false;   // for a check by hand
    bool Figures = false;  // the curves and contour lines of the results
};
// What the user has chosen for documents: in the viewer, which begins with the parts above, in the preview of the
// printer, or where a document is saved.
DocumentParts& PartsChosen();

// Session.ResultText with what the parts put behind it as text.
std::string ReportWith(const DocumentParts& parts);

}  // namespace lithmark
