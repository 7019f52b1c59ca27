// The tables for a check by hand as a spreadsheet: a sheet for each, its sums as formulas.
#pragma once

#include <string>
#include <vector>

#include "report/StepTables.h"

namespace lithmark {

// The file's bytes. A sum of a column is a formula over its rows, with the value that the run had.
std::string StepTablesXlsx(const std::vector<StepTable>& tables);

}  // namespace lithmark
