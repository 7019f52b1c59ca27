// The sign by which rows of one study are told from those of another.
#pragma once

#include <string>
#include <vector>

#include "study/StudyPlan.h"
#include "study/StudyRequest.h"
#include "study/Take.h"

namespace lithmark {

// Eight hexadecimal digits over the project's data with all that is set for the study, preferences, units and number
// formats, the request with the content of its file of rows, what is taken, and the program's version. Headings, dates
// and the language, which change no number, take no part.
std::string StudyIdentity(const StudyRequest& request, const StudyPlan& plan, const std::vector<Take>& takes);

}  // namespace lithmark
