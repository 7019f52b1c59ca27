// Tables for a check by hand of the problems 6 to 8.
#pragma once

namespace lithmark {

// The slots with load, load step and degree of settlement, and the settlement of each slot by load steps. From the
// curves of Session after a run.
void AddHistoryTables();

}  // namespace lithmark
