// Results to a file or to standard output.
#pragma once

#include <string>

namespace lithmark {

// Writes bytes to `path`, whole or not at all; an empty path means standard output. Throws CommandFailure.
void WriteOutput(const std::string& path, const std::string& bytes);

// The format in force: as asked, else told by the ending of the output, else `fallback`.
std::string FormatInForce(const std::string& asked, const std::string& output, const std::string& fallback);

// A cell of a comma-separated table, in double quotes where its content calls for them (RFC 4180).
std::string CsvCell(const std::string& text);

}  // namespace lithmark
