// The sign by which rows of one study are told from those of another.
#pragma once

#include <string>
#include <vector>

#include "study/StudyPlan.h"
#include "study/StudyTakes.h"
#include "study/Take.h"

namespace lithmark {

// Eight hexadecimal digits over the project's data with all that is set for the study, preferences, units and number
// formats, the plan of the rows, what is taken with its limits, and the program's version. Headings, dates and the
// language, which change no number, take no part; nor does the way in which the study was asked for: a field by its
// name or symbol, a number as 5 or 5.0, a deviation as a percentage, limits and correlations in another order.
std::string StudyIdentity(const StudyPlan& plan, const std::vector<Take>& takes, std::vector<ResultLimit> limits);

}  // namespace lithmark
