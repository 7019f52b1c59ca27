// The input of a consolidation run, and its report.
#pragma once

#include <string>

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// As the arguments of ComputeConsolidation, in base units.
struct ConsolidationInput {
    Single x, y, z;
    Single Q, P, A, B;
    Single h, eo, Po, Gamma, Cc, Es;
    Integer LoadType, SoilPropertyType;
};

// Replaces Session.ResultText by the report of problem 4 with the settlement Session.s.
void WriteConsolidationReport(const ConsolidationInput& in);

// Which input made a run fail, as report/Causes.h has it; empty when it was none of them.
std::string CauseInConsolidation(const ConsolidationInput& in);

}  // namespace lithmark
