// The results of a run by the names that reports, scripts and studies call them.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/Single.h"

namespace lithmark {

// One result of a problem: a number, a count, or a list. It is read from Session after the run.
struct RunResult {
    std::string_view Name;
    std::string_view Symbol;            // what the report prints for it; empty where the report does not name it
    std::optional<double> (*Number)();  // null for a list; nothing where this run has no such result
    std::span<const Single> (*List)();  // null for a number
    int Lower = 0;                      // the index of a list's first element
    bool Whole = false;                 // a count

    bool IsList() const noexcept { return List != nullptr; }
};

// The results of a problem, 1 to 10, in their fixed order; none for any other.
std::span<const RunResult> ResultsOf(int problemType);

// The result of a name or, where no result has this name, of a symbol; null where there is neither.
const RunResult* FindResult(int problemType, std::string_view name);

}  // namespace lithmark
