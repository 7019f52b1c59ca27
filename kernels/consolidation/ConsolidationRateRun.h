// What one run of the degree of consolidation holds, and its report.
#pragma once

#include <string>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// Base units; see ComputeConsolidationRate.
struct ConsolidationRateInput {
    Single x, y, z, Q, P, A, B;
    Integer LoadType;
    Single U, T;
    Integer NumLayers;
    Array<Single> hLayer, CvLayer, KLayer;  // 1 .. NumLayers in use
    Integer DrainageCondition;
    bool Pressure = false;
    std::string TimeUnit;
};

// The time factor of layer 1 alone, Tv = Cv t/H^2 with H [m] the drainage length: half the layer where its bottom is
// drained, the layer where it is impermeable. `c`: seconds per time unit. DivisionByZero for any other drainage.
Single TimeFactorOfLayer1(Integer drainageCondition, Single hLayer, Single CvLayer, Single T, Single c);

// Starts a new Session.ResultText with the input, Uc and the table of the isochrones. c: seconds per time unit. Throws
// Failure; a drainage condition that is neither 1 nor 2 has no drainage length and so divides by zero.
void WriteConsolidationRateReport(const ConsolidationRateInput& in, Single c);

// Which input made a run fail, as report/Causes.h has it; empty when it was none of them.
std::string CauseInConsolidationRate(const ConsolidationRateInput& in);

}  // namespace lithmark
