// The fields of a problem's dialog that a study can vary: those whose boxes are reached, with what they hold.
#pragma once

#include <string>
#include <vector>

#include "ui/model/ProblemForm.h"

namespace lithmark {

struct FieldChoice {
    std::string Name;     // as the command line has it
    std::string Symbol;   // plain, as a report prints it; empty where it prints none
    std::string InPrint;  // the symbol as windows write it; empty: plain
    std::string Label;    // "Length"
    std::string Unit;     // "m"; empty where there is none
    double Factor = 1;    // shown units for a base unit
    double Value = 0;     // of the draft; this and the limits in the shown unit
    double Least = -kNoLimit, Greatest = kNoLimit;
    bool Whole = false;

    // "a", or the label where there is no symbol.
    const std::string& Short() const noexcept { return !InPrint.empty() ? InPrint : !Symbol.empty() ? Symbol : Label; }
};

// `draft` is the record of a valid draft of the form.
std::vector<FieldChoice> FieldChoicesOf(const ProblemForm& form, const SessionRecord& draft);

struct FieldRange {
    double From, To;
};
// Half to one and a half times the present value, 0 to 1 around nothing, inside the field's limits; for counts whole
// numbers.
FieldRange ProposedRange(const FieldChoice& field);

}  // namespace lithmark
