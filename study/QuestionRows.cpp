#include "study/QuestionRows.h"

#include <utility>

#include "core/Session.h"

namespace lithmark {

QuestionRows::QuestionRows(std::vector<Take> takes, int jobs, std::function<bool()> goOn)
    : pool_(Session, std::move(takes), jobs), goOn_(std::move(goOn)) {}

bool QuestionRows::Work(std::uint64_t count, const std::function<RowInput(std::uint64_t)>& input,
                        const std::function<void(std::uint64_t, const RowOutcome&)>& ready) {
    if (ended_) return false;
    OrderedRows rows;
    rows.Count = count;
    rows.Input = input;
    rows.Ready = ready;
    rows.GoOn = [this](std::uint64_t) { return !goOn_ || goOn_(); };
    ended_ = WorkInOrder(pool_, rows) < count;
    return !ended_;
}

}  // namespace lithmark
