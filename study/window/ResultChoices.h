// The results that the windows of studies offer for a problem, in the words, units and formats of its report.
#pragma once

#include <string>
#include <vector>

#include "core/Session.h"

namespace lithmark {

struct ResultChoice {
    std::string Take;     // as the command line has it: "s", "max(NodeSettlement)"
    std::string Symbol;   // plain: "Sigma_z", "max s"
    std::string Label;    // "Settlement"
    std::string Unit;     // "cm"; empty where there is none
    double Factor = 1;    // shown units for the number that a study gives
    std::string Format;   // of the report
    std::string InPrint;  // the symbol as windows write it; empty: plain

    const std::string& Short() const noexcept { return InPrint.empty() ? Symbol : InPrint; }

    // A number of a study as the report would print it.
    std::string Shown(double number) const;
};

// Those of a run of this record, the one that is looked for most often first.
std::vector<ResultChoice> ResultChoicesOf(const SessionRecord& draft);

}  // namespace lithmark
