// Tables for a check by hand of the problems 1 to 3.
#pragma once

#include "kernels/elastic/RectangularLoad.h"
#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// The corners of a rectangle, and their terms of the stresses (problems 1 and 2) or displacements (3), with the sums
// and the results that follow. Nothing for another load.
void AddCornerTables(const SoilStressInput& in, const CornerRecord& record);

}  // namespace lithmark
