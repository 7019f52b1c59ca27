// Comma-separated tables (RFC 4180): cells to text and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/CsvCell.h"

namespace lithmark {

// The records of a table one after the other. A quoted cell may hold line ends; a record ends with a line end, CR LF or
// LF.
class CsvReader {
  public:
    explicit CsvReader(std::string_view text) : text_(text) {}

    // The cells of the next record; nothing at the end, and where the last record has no line end unless
    // `lastMayBeOpen`.
    std::optional<std::vector<std::string>> Next(bool lastMayBeOpen);
    // The line in which the record given last begins, from 1 on.
    long Line() const noexcept { return line_; }
    // Where the next record begins.
    std::size_t At() const noexcept { return at_; }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
    long line_ = 0, nextLine_ = 1;
};

}  // namespace lithmark
