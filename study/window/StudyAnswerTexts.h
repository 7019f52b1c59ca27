// What the windows of studies show of a study besides its curves: its rows as cells, the answer of a search, a tornado.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "study/window/StudyCurves.h"

namespace lithmark {

// The rows in the units and formats of the windows.
struct ShownRows {
    enum class Kind { Good, Noticed, Aborted };
    struct Row {
        Kind Is = Kind::Good;
        bool Crossed = false;  // one of the two neighbours of a crossing
        std::vector<std::string> Cells;
        std::string Notices;  // the ids of those that the last cell tells in words
    };

    std::vector<std::string> Heads;
    std::vector<Row> Rows;
};
// The first rows, so many at most.
ShownRows RowsOf(const StudyQuestion& asked, const StudyTable& table, std::size_t most);

// "s = 5.00 cm at a = 3.42 m; ..." of the command's search, or that there is no such value.
std::string FoundText(const StudyQuestion& asked, const StudyAnswer& answer);

// The bars of a tornado, the greatest first, in the units of the windows; bars that the run could not give are left
// out.
struct TornadoBar {
    std::string Name;  // "a  2.00 ... 6.00 m"
    double AtLow = 0, AtHigh = 0;
};
std::vector<TornadoBar> TornadoBarsOf(const StudyQuestion& asked, const StudyAnswer& answer);

}  // namespace lithmark
