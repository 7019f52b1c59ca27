// The results that a study takes, and the limits that some of them are held against.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/StudyRequest.h"
#include "study/Take.h"

namespace lithmark {

struct ResultLimit {
    std::string Result;  // the column of the result
    float Value = 0;     // a result above it is beyond
};

// Each result once, as asked for, or every single number of the problem; those with a limit come along. StudyFailure
// that names the nearest known result.
std::vector<Take> TakesOf(const StudyRequest& request);

// The limits, one for a result at most.
std::vector<ResultLimit> LimitsOf(const StudyRequest& request);

// True for a field of the problem's data and for a preference: what a run may depend on.
bool IsFieldOfProblem(std::string_view name);

}  // namespace lithmark
