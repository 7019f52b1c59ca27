// The report of the problems 1 to 3: stresses, strains and displacements in soil.
#pragma once

#include <string>

#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// Replaces Session.ResultText by the report of the results in Session for the current ProblemType: title, load, soil,
// point, results. A load type outside 1 to 3 has no title row and no load rows, a problem outside 1 to 3 no title row
// and no results. Displacements are printed in cm as they stand, with the label of the small length unit in force.
void WriteSoilStressReport(const SoilStressInput& in);

// Which input made a run fail, as report/Causes.h has it; empty when it was none of them.
std::string CauseInStress(const SoilStressInput& in);

}  // namespace lithmark
