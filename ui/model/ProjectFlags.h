// For which problems the open project holds saved data: the ticks of the menu entries mnuProblem(0) to mnuProblem(15).
#pragma once

namespace lithmark {

inline constexpr int kProblemEntries = 16;

// True when the data of a menu entry exist in the project. Entry 0 is the project's own data; the catalogue tells the
// entry of a problem. SubscriptRange outside 0 to 15.
bool ProblemSaved(int menuEntry);
void SetProblemSaved(int menuEntry, bool saved);

}  // namespace lithmark
