// The rows of a study that stand in a file: read again to be joined with others or to be gone on from.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "study/StudyLine.h"
#include "study/StudyPlan.h"

namespace lithmark {

class PartFile {
  public:
    // Opens a table, a list or lines of objects as RowWriter writes them. StudyFailure where it cannot be read.
    PartFile(const std::string& path, const StudyHead& head);

    // The next row; nothing at the end, and for a last line without its end. Each row must belong to the study of the
    // head, have the values that the plan has for it, and stand behind the row ahead of it: StudyFailure otherwise,
    // which names the first row that does not.
    std::optional<StudyLine> Next(const StudyPlan& plan);

    const std::string& Path() const noexcept { return path_; }

  private:
    std::optional<std::string> NextLine();
    void ReadHead();
    std::optional<std::vector<std::string>> Cells(const std::string& line) const;
    [[noreturn]] void FailRow(TextId text, const std::string& row) const;
    [[noreturn]] void FailLine() const;

    std::string path_;
    StudyHead head_;
    std::vector<std::string> columns_;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    bool json_ = false, otherHead_ = false;
    long line_ = 0;
    std::uint64_t last_ = 0;
};

}  // namespace lithmark
