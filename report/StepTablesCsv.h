// The tables for a check by hand as comma-separated text.
#pragma once

#include <string>
#include <vector>

#include "report/StepTables.h"

namespace lithmark {

// All tables, one below the other and an empty line between two: title, head (title, symbol and unit of each column),
// rows, sums, notes. Lines end in CR LF, as RFC 4180 has it; numbers have a point as decimal sign.
std::string StepTablesCsv(const std::vector<StepTable>& tables);

}  // namespace lithmark
