// A cell of a comma-separated table (RFC 4180).
#pragma once

#include <string>
#include <string_view>

namespace lithmark {

// In double quotes where its content calls for them.
std::string CsvCell(std::string_view text);

}  // namespace lithmark
