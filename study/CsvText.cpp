#include "study/CsvText.h"

#include <algorithm>

namespace lithmark {

std::optional<std::vector<std::string>> CsvReader::Next(bool lastMayBeOpen) {
    if (at_ >= text_.size()) return std::nullopt;
    std::vector<std::string> cells(1);
    bool quoted = false;
    std::size_t at = at_;
    for (; at < text_.size(); ++at) {
        const char c = text_[at];
        if (quoted) {
            if (c != '"') {
                cells.back() += c;
            } else if (at + 1 < text_.size() && text_[at + 1] == '"') {
                cells.back() += '"';
                ++at;
            } else {
                quoted = false;
            }
        } else if (c == '"' && cells.back().empty()) {
            quoted = true;
        } else if (c == ',') {
            cells.emplace_back();
        } else if (c == '\n') {
            break;
        } else {
            cells.back() += c;
        }
    }
    if (at == text_.size() && !lastMayBeOpen) return std::nullopt;
    line_ = nextLine_;
    const std::size_t end = std::min(at + 1, text_.size());
    nextLine_ += std::count(text_.begin() + static_cast<std::ptrdiff_t>(at_),
                            text_.begin() + static_cast<std::ptrdiff_t>(end), '\n');
    at_ = end;
    if (cells.back().ends_with('\r')) cells.back().pop_back();
    return cells;
}

}  // namespace lithmark
