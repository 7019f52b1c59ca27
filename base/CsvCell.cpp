#include "base/CsvCell.h"

#include "base/NumberText.h"
#include "base/Utf8.h"

namespace lithmark {

std::string CsvCell(std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
    return "\"" + ReplaceAll(text, "\"", "\"\"") + "\"";
}

namespace {

// "-3.5", "+24.0 %".
bool IsNumber(std::string_view text) {
    if (text.ends_with(" %")) text.remove_suffix(2);
    if (text.starts_with('+')) text.remove_prefix(1);
    return ParseNumber(text).has_value();
}

}  // namespace

std::string CsvWords(std::string_view text) {
    const bool formula =
        text.size() > 1 && std::string_view("=+-@").find(text.front()) != std::string_view::npos && !IsNumber(text);
    return CsvCell(formula ? "'" + std::string(text) : std::string(text));
}

}  // namespace lithmark
