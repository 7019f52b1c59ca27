// ToolLib: the primitives with which every kernel composes its fixed-pitch text report.
//
// The report is Session.ResultText, one growing string with CR LF line ends, laid out for lines of 60 characters.
// Lengths are counted in characters. The primitives compute nothing and report no failure of their own.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/Array.h"
#include "core/Session.h"

namespace lithmark {

constexpr int kReportWidth = 60;
inline const std::string kLineEnd = "\r\n";

// 60 characters "-".
std::string Ruler();

// The text with the blanks in front that centre it in the report's width; half a blank goes to the even number. A
// longer text stays as it is.
std::string Centred(const std::string& text);

// Starts a new report with the heading block, then ClearParameters.
void ReportHeading();

// The parameter block: label, symbol, unit, "=", value, aligned. AddParameter appends a line; with a label alone it is
// a line of text, with nothing at all an empty line. A numeric value is formatted by `format` (empty: its plain text).
void ClearParameters();
void AddParameter(const Label& label = {}, const std::string& symbol = {}, const std::string& unit = {},
                  const ReportValue& value = {}, const std::string& format = {});
void ReportParameters();

// Appends each element as a line of its own; a text number as its text, nothing for text number 0.
void ReportLines(std::initializer_list<Label> lines);

// The table described by Session's table fields: title, ruler, header, ruler, rows, ruler.
void ReportTable();
// Resolves titles, symbols and units into header rows 0 .. Session.HeaderRows.
void BuildTableHeader(Matrix<std::string>& header);
void PrintTableHeader(std::string& ruler, Array<Integer>& widths);

// Number of lam-alef pairs: in a fixed-pitch Arabic font each takes one cell less than its length says.
int LigatureCount(const std::string& text);

// Fields of a table's column, set together. Call TableColumns first.
void TableColumns(int lastColumn, int lastRow, const std::string& title);
void TableColumn(int column, const Label& title, const std::string& symbol, const ColumnUnit& unit);

// Text 40079, a blank, the table's number, and the line of dashes under it.
void ReportSectionTitle(const std::string& tableNumber);

// The beginning of a section of the parameter block: an empty line and the text as a heading (style 4).
void AddSection(TextId heading);

}  // namespace lithmark
