#include "study/OrderedRows.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <optional>
#include <utility>

namespace lithmark {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kAskEvery{50};
// Answers that may wait for an earlier row, in rows that keep the workers busy; few where rows are short and many.
constexpr std::uint64_t kAhead = 64;

}  // namespace

std::uint64_t WorkInOrder(WorkerPool& pool, const OrderedRows& rows) {
    std::deque<std::optional<RowOutcome>> window;  // from the next row to be given on
    std::uint64_t given = 0, added = 0, done = 0;
    std::vector<WorkerPool::Answer> answers;
    Clock::time_point asked{};
    while (given < rows.Count) {
        const std::uint64_t appetite = pool.Appetite();
        const std::uint64_t ahead = std::max(2 * appetite, std::min(kAhead * appetite, kMostRowsAhead));
        while (added < rows.Count && pool.Unanswered() < appetite && added - given < ahead) {
            pool.Add(added, rows.Input(added));
            window.emplace_back();
            ++added;
        }
        answers.clear();
        pool.Collect(answers, static_cast<int>(kAskEvery.count()));
        for (auto& answer : answers) window[answer.Row - given] = std::move(answer.Outcome);
        done += answers.size();
        for (; !window.empty() && window.front(); window.pop_front()) rows.Ready(given++, *window.front());
        const auto now = Clock::now();
        if (now - asked < kAskEvery && given < rows.Count) continue;
        asked = now;
        if (!rows.GoOn(done)) {
            pool.Abandon();
            break;
        }
    }
    return given;
}

}  // namespace lithmark
