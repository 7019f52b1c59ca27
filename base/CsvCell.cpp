#include "base/CsvCell.h"

#include "base/Utf8.h"

namespace lithmark {

std::string CsvCell(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    return "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

}  // namespace lithmark
