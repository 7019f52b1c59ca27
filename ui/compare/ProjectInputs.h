// ProjectInputs: what the dialog of a problem shows of a project's data, as texts that can be held against another
// project's.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/model/ProblemForm.h"

namespace lithmark {

struct ProjectInput {
    std::string Key;                  // by which it is found in another project of the problem
    std::string Label, Symbol, Unit;  // the symbol as reports write it, the unit without its brackets
    std::string Text;                 // as the dialog shows it
    std::optional<double> Number;     // in base units; nothing of a choice, a date or a row of a table
    double Factor = 1;                // units shown per base unit
    bool Counts = true;               // the dialog shows it, and it can be reached there

    // With all its digits, in the unit shown.
    std::string AllDigits() const;
};

// Of a form that shows Session, in its own order: the choices, the fields, the rows of its tables.
std::vector<ProjectInput> InputsOf(const ProblemForm& form);

}  // namespace lithmark
