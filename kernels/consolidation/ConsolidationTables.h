// Tables for a check by hand of the problems 4 and 5.
#pragma once

#include <vector>

#include "base/Array.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "kernels/consolidation/PorePressureMarch.h"

namespace lithmark {

// Problem 4: the intervals of depth with their shares of the settlement.
void AddSublayerTable(const ConsolidationInput& in, const std::vector<Sublayer>& sublayers);

// What a march was made of. Per layer: intervals, their length [m], step number; then seconds per time unit, the step
// in time units, the time in steps; per node: depth [m], the length of soil that it stands for [m], its weights.
struct MarchRecord {
    const Array<Integer>& n;
    const Array<Single>& dz;
    const Array<Single>& Lambda;
    Single SecondsPerUnit, TimeStep, Steps;
    const Array<Single>& Depth;
    const Array<double>& Weight;
    const Array<FivePointRow>& Rows;
};

// Problem 5: layers and step, nodes with their pressures and the sums behind Uc, weights of the march.
void AddMarchTables(const ConsolidationRateInput& in, const MarchRecord& march);

}  // namespace lithmark
