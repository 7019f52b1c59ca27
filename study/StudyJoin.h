// The parts of a study put together.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "study/StudyRun.h"

namespace lithmark {

// Writes the rows of all parts in order of rows. A row that stands in several parts is taken from one in which it did
// not abort, else from the first. StudyFailure, with the writer not finished, where rows are missing; it names them.
StudyTally JoinParts(const StudyPlan& plan, const StudyHead& head, const std::vector<std::string>& files,
                     RowWriter& writer, const std::function<void(const StudyLine&)>& seen);

}  // namespace lithmark
