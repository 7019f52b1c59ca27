// The catalogue of the eleven problems and their defaults.
#pragma once

#include <span>

#include "base/TextId.h"

namespace lithmark {

struct ProblemRow {
    int ProblemType;
    int MenuEntry;  // index of mnuProblem
    TextId MenuText;
    const char* Extension;  // of the data file, upper case
};

std::span<const ProblemRow> ProblemCatalogue();
// The row of a problem number, or null for a number outside 1 to 11.
const ProblemRow* FindProblem(int problemType);

// Fills Session with the defaults of the current ProblemType: exactly the fields of that problem, no others.
void SetProblemDefaults();

}  // namespace lithmark
