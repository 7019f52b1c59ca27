// Rows from a file: a comma-separated table with a head of field names, a row a line.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "study/StudyField.h"

namespace lithmark {

class RowsFile {
  public:
    // Reads the whole file, "-" for standard input. StudyFailure where it cannot be read, a name of its head is no
    // field, or a line has another count of cells than the head.
    explicit RowsFile(const std::string& path);

    const std::vector<StudyField>& Fields() const noexcept { return fields_; }
    std::uint64_t Count() const noexcept { return starts_.size(); }
    // A cell each; an empty one leaves the project's value.
    std::vector<std::string> Values(std::uint64_t row) const;

  private:
    std::string text_;
    std::vector<StudyField> fields_;
    std::vector<std::size_t> starts_;  // of the rows in the text
};

}  // namespace lithmark
