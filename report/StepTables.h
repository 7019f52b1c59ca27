// Tables for a check by hand: the steps behind a result, with their sums.
//
// A recorder collects them during a run. It is off by default and costs a run nothing then; the desktop keeps it on,
// the command line switches it on by --tables. Values are in the units in force, as in the report.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/Session.h"

namespace lithmark {

// A number, a word, or nothing.
struct StepCell {
    StepCell() = default;
    StepCell(double number) : Number(number) {}
    StepCell(Single number) : Number(number) {}
    StepCell(const char* word) : Word(word) {}

    std::optional<double> Number;
    std::string Word;
};

struct StepColumn {
    std::string Title, Symbol, Unit;  // the unit in its brackets, or empty
    // In one line: "Depth z [m]".
    std::string Head() const;
};

// A row under the table: the sums of its columns, or what they are held against.
struct StepSum {
    enum class Of { Column, Something };
    std::string Label;
    Of Kind = Of::Something;
    std::vector<StepCell> Cells;  // one for each column behind the first
};

struct StepTable {
    std::string Title;
    std::vector<StepColumn> Columns;
    std::vector<std::vector<StepCell>> Rows;
    std::vector<StepSum> Sums;
    std::vector<std::string> Notes;

    void AddColumn(const Label& title, const std::string& symbol, const std::string& unit = {});
    // The sum of a column's numbers in 64 bits.
    double SumOf(std::size_t column) const;
    // Appends a row with the sums of the columns named; the others stay empty.
    void AddSums(const std::vector<std::size_t>& columns);
    // Appends a row that the sums are held against.
    void AddLine(const std::string& label, std::vector<StepCell> cells);
};

// Decimals that give the greatest number of a column the digits of a Single; -1: exponents, where numbers are tiny or
// huge.
int DecimalsOf(const StepTable& table, std::size_t column);

class StepRecorder {
  public:
    bool On() const noexcept { return on_; }
    void SwitchOn(bool on) noexcept { on_ = on; }
    void Clear() { tables_.clear(); }
    // A new table, which lives until the next one is added.
    StepTable& Add(const std::string& title);
    const std::vector<StepTable>& Tables() const noexcept { return tables_; }

  private:
    bool on_ = false;
    std::vector<StepTable> tables_;
};

StepRecorder& Steps();

}  // namespace lithmark
