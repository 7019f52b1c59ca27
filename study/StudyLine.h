// A row as it stands in a study's table, and the table's head.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/Row.h"
#include "study/StudyPlan.h"
#include "study/Take.h"

namespace lithmark {

struct StudyHead {
    bool Cases = false;
    std::vector<StudyField> Fields;
    std::vector<Take> Takes;
    std::string Study;

    // Row, Case, the fields, the results, Status, Notices, Study. A result that is called as a field of the study has
    // the column "result(name)".
    std::vector<std::string> Columns() const;
};

struct StudyLine {
    std::uint64_t Row = 0;  // from 1 on
    std::string Case;
    std::vector<std::string> Values;
    std::vector<float> Numbers;  // one for each result, kMissing where the row has none
    std::string Status;          // "ok", "ok: " and a warning, or the message of the run that aborted
    std::string Notices;

    bool Aborted() const noexcept { return Status != "ok" && !Status.starts_with("ok: "); }
};

StudyLine LineOf(std::uint64_t row, PlannedRow planned, const RowOutcome& outcome, const StudyHead& head);

// The cells of a line under the columns of the head, and back; nothing where they are no such line.
std::vector<std::string> CellsOf(const StudyHead& head, const StudyLine& line);
std::optional<StudyLine> LineOfCells(const StudyHead& head, std::vector<std::string> cells);

// A head or a line as a record of a comma-separated table, with its line end.
std::string CsvRecord(const std::vector<std::string>& cells);
// A line as an object; no line end.
std::string JsonRecord(const StudyHead& head, const StudyLine& line);
// The values of an object that has exactly these keys in this order; null is an empty text.
std::optional<std::vector<std::string>> JsonCells(std::string_view record, const std::vector<std::string>& keys);

// A text in double quotes as JSON has it; bytes that are no UTF-8 are replaced.
std::string JsonString(std::string_view text);

}  // namespace lithmark
