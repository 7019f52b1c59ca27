// The rows of a study one after the other: worked by all workers at once, given in order as they are ready.
#pragma once

#include <cstdint>
#include <functional>

#include "study/WorkerPool.h"

namespace lithmark {

struct OrderedRows {
    std::uint64_t Count = 0;
    std::function<RowInput(std::uint64_t position)> Input;  // of the rows 0 to Count - 1
    std::function<void(std::uint64_t position, const RowOutcome& outcome)> Ready;
    std::function<bool(std::uint64_t done)> GoOn;  // asked some twenty times a second; false ends the study
};

// So many rows at most are worked ahead of one that is late, so that what waits for it takes little memory; more only
// where very many workers would run dry.
inline constexpr std::uint64_t kMostRowsAhead = 16384;

// Works all rows and gives them in order; of an ended study those ahead of the first that is missing. The count of rows
// that were given.
std::uint64_t WorkInOrder(WorkerPool& pool, const OrderedRows& rows);

}  // namespace lithmark
