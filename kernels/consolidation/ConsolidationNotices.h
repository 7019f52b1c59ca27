// What the notices of problems 4 and 5 are measured by. Raising one changes no value.
#pragma once

#include "base/Array.h"
#include "kernels/consolidation/ConsolidationInput.h"
#include "kernels/consolidation/ConsolidationRateRun.h"

namespace lithmark {

// Problem 4, after the run.
void RaiseConsolidationNotices(const ConsolidationInput& in);

// Problem 5, ahead of the march, which may overflow: lambda, the step number of each layer.
void RaiseStepNotices(const Array<Single>& lambda);
// Problem 5, after the run. steps: the time in steps; depth: the depth of each node in the soil [m], which is not the
// printed one; weight: the length of soil that each node stands for [m].
void RaiseMarchNotices(const ConsolidationRateInput& in, Single steps, const Array<Single>& depth,
                       const Array<double>& weight);

}  // namespace lithmark
