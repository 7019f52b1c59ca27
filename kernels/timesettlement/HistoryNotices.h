// What the notices of problems 6 to 8 are measured by.
#pragma once

namespace lithmark {

// Raises the notices of a finished run, whose curves stand in Session; no value is changed.
void RaiseHistoryNotices();

}  // namespace lithmark
