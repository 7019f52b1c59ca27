// The table editor's data: heads, values as texts, and what each column accepts.
#pragma once

#include <string>
#include <vector>

#include "base/Array.h"

namespace lithmark {

struct TableEdit {
    enum class Kind { Whole = 1, Real = 2, Free = 3 };  // Free: a real number without a told range
    struct Column {
        std::string Head;  // three lines: title, symbol, unit
        Kind Accepts = Kind::Real;
        double Upper = 1e38, Lower = -1e38;
    };
    std::string Title, Help;
    std::string RowHead;                         // head of the editor's own column of row numbers
    std::vector<Column> Columns;                 // the columns 1, 2, ... that the user edits
    std::vector<std::vector<std::string>> Rows;  // a text per column; the user may add and delete rows
};

}  // namespace lithmark
