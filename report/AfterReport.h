// What may stand behind a report as text of the same kind: the box of notices and the tables for a check by hand. The
// report itself is never changed.
#pragma once

#include <string>

namespace lithmark {

// Lines with CR LF line ends, an empty one first; empty when there is nothing to tell.
std::string NoticeBox();

// Heading and tables, in the same form. Without a table: a line that says so.
std::string StepTablesText();

enum class Behind { Nothing, Notices, Tables, NoticesAndTables };

// Session.ResultText with what is asked for behind it.
std::string ReportWith(Behind parts);

}  // namespace lithmark
