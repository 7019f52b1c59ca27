// A cell of a comma-separated table (RFC 4180).
#pragma once

#include <string>
#include <string_view>

namespace lithmark {

// In double quotes where its content calls for them.
std::string CsvCell(std::string_view text);
// A cell with words. What spreadsheets would take for a formula, a text that begins with = + - or @ and is no number
// nor a percentage, gets an apostrophe in front, which tells them that it is a text.
std::string CsvWords(std::string_view text);

}  // namespace lithmark
