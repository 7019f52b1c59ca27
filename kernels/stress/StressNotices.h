// What the notices of problems 1 to 3 are measured by.
#pragma once

#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// Raises the notices of a finished run, whose results stand in Session; no value is changed.
void RaiseStressNotices(const SoilStressInput& in);

}  // namespace lithmark
