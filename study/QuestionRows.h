// Rows that are worked to answer a question and stand in no table: one set after the other, by the same workers.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "study/OrderedRows.h"
#include "study/Take.h"
#include "study/WorkerPool.h"

namespace lithmark {

class QuestionRows {
  public:
    // Rows start from the project that Session holds. `goOn` is asked some twenty times a second; false ends
    // everything.
    QuestionRows(std::vector<Take> takes, int jobs, std::function<bool()> goOn);

    // Works rows 0 to count - 1 and gives them in order. False when that was ended ahead of the last one; from then on
    // no row is worked any more.
    bool Work(std::uint64_t count, const std::function<RowInput(std::uint64_t)>& input,
              const std::function<void(std::uint64_t, const RowOutcome&)>& ready);

    bool Ended() const noexcept { return ended_; }

  private:
    WorkerPool pool_;
    std::function<bool()> goOn_;
    bool ended_ = false;
};

}  // namespace lithmark
