// The work of one row in this process: the record as it was at the start, the row's fields, the kernel, the results.
#pragma once

#include <functional>
#include <vector>

#include "core/Session.h"
#include "study/Row.h"
#include "study/Take.h"

namespace lithmark {

class RowWork {
  public:
    // Rows start from this record. `goOn` is asked now and then during a long run; false ends the row.
    RowWork(const SessionRecord& start, std::vector<Take> takes, std::function<bool()> goOn = {});

    // No file is written. Leaves Session as the row's run left it. A value that its field cannot hold, or a field that
    // is none, aborts the row with a message; so does every failure of the run. The digits are those of a program run
    // for this row alone.
    RowOutcome Run(const RowInput& input) const;

  private:
    void TakeResults(RowOutcome& outcome) const;

    SessionRecord start_;
    std::vector<Take> takes_;
    std::function<bool()> goOn_;
};

}  // namespace lithmark
