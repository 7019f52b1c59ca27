// A worker's side of a study: rows come in over a socket, outcomes go back.
#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "core/Session.h"
#include "study/Take.h"
#include "study/Wire.h"

namespace lithmark {

inline constexpr Ticket kNoRow = ~Ticket{0};

// Works rows until the other end of the socket is closed. `inWork` holds the ticket of the row in work, where the study
// still sees it after the worker's death.
void WorkRows(int socket, std::atomic<Ticket>& inWork, const SessionRecord& start, const std::vector<Take>& takes);

}  // namespace lithmark
