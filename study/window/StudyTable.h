// The table of a study as it comes from the command, row by row.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "study/StudyLine.h"
#include "study/StudyRequest.h"

namespace lithmark {

class StudyTable {
  public:
    // On the problem that Session holds. StudyFailure where the request cannot be understood.
    explicit StudyTable(const StudyRequest& request);

    // The next bytes of the table, cut anywhere. StudyFailure for a head or a row that is none of this study.
    void Append(std::string_view bytes);

    std::uint64_t Wanted() const noexcept { return wanted_; }
    const std::vector<StudyLine>& Lines() const noexcept { return lines_; }
    const StudyHead& Head() const noexcept { return head_; }
    // The places of a taken result and of a field; -1 for one that is not among them.
    int PlaceOfTake(std::string_view take) const;
    int PlaceOfField(std::string_view field) const;
    int Aborted() const noexcept;

    // The head and the whole rows so far, byte by byte as they came, and as cells.
    std::string Csv() const { return text_.substr(0, whole_); }
    std::vector<std::vector<std::string>> Cells() const;

  private:
    StudyHead head_;
    std::uint64_t wanted_ = 0;
    std::string text_;
    std::size_t whole_ = 0;  // up to the end of the last whole row
    std::vector<StudyLine> lines_;
};

// A small table of answers: crossings, influences. Every cell as text, in base units.
struct StudyAnswer {
    std::vector<std::string> Head;
    std::vector<std::vector<std::string>> Rows;

    explicit StudyAnswer(std::string_view csv);
    // The cell of a row under a head; empty where there is no such column.
    std::string Cell(std::size_t row, std::string_view head) const;
};

}  // namespace lithmark
