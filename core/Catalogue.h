// The catalogue of the eleven problems: all that menus, dialogs, files and reports ask of a problem, and its defaults.
#pragma once

#include <span>

#include "base/TextId.h"
#include "core/Problems.h"

namespace lithmark {

// The curve sets that a problem's results are shown in.
enum class CurveFamily {
    None,
    Isochrones,      // one fixed set
    TimeSettlement,  // the load, settlements under a sudden load, those of the building, the corrected ones
    MiddleRow        // of a raft: contact pressures and settlements
};

struct ProblemRow {
    int ProblemType;
    int MenuEntry;          // index of mnuProblem; problems of one entry share the data file
    TextId MenuText;        // of the entry, of its row in the list of problems, of the caption of the problem's dialog
    TextId Subject;         // the caption of the results: the entry's text, or the method where an entry has several
    const char* Extension;  // of the data file, upper case
    CurveFamily Curves;
    bool Calculated;             // it has a kernel, and stands in the list of problems
    bool HandsOver;              // its results can go to the raft analysis program
    TextId RaftSettlement = {};  // rafts: what their settlement is called in tables, curves and contours

    bool HasContours() const { return IsRaft(ProblemType); }
};

// In the order of their numbers.
std::span<const ProblemRow> ProblemCatalogue();
// The row of a problem number, or null for a number outside 1 to 11.
const ProblemRow* FindProblem(int problemType);
// The row of the current ProblemType. SubscriptRange when it has none.
const ProblemRow& ProblemInForce();
// The first problem of a menu entry, or null for an entry without one.
const ProblemRow* FirstProblemOf(int menuEntry);

// The entries of mnuProblem: 0 is the project's own data, the last one has data and no dialog.
inline constexpr int kProjectEntry = 0, kLastProblemEntry = 9;

// Fills Session with the defaults of the current ProblemType: exactly the fields of that problem, no others.
void SetProblemDefaults();

}  // namespace lithmark
