// The table editor's data: heads, values as texts, and what each column accepts.
#pragma once

#include <string>
#include <vector>

#include "base/Array.h"

namespace lithmark {

struct TableEdit {
    enum class Kind { Whole = 1, Real = 2, Positive = 3 };  // Positive: a real number from 0 on
    struct Column {
        std::string Head;  // three lines: title, symbol, unit
        Kind Accepts = Kind::Real;
        double Upper = 1e38, Lower = -1e38;
    };
    std::string Title, Help;
    std::string RowHead;                         // head of the editor's own column of row numbers
    std::vector<Column> Columns;                 // the columns 1, 2, ... that the user edits
    std::vector<std::vector<std::string>> Rows;  // a text per column; the user may add and delete rows
    // The values behind Rows as they are opened, with all their digits, "." as decimal point: a cell that shows fewer
    // is marked. Empty where the rows say all.
    std::vector<std::vector<std::string>> Digits;
};

}  // namespace lithmark
