// A worker's side of a study: rows come in over a stream, outcomes go back.
#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "core/Session.h"
#include "services/platform/Workers.h"
#include "study/Take.h"
#include "study/Wire.h"

namespace lithmark {

inline constexpr Ticket kNoRow = ~Ticket{0};

// Works rows until the other end of the stream is closed. `inWork` holds the ticket of the row in work, where the study
// still sees it after the worker's death.
void WorkRows(platform::Socket socket, std::atomic<Ticket>& inWork, const SessionRecord& start,
              const std::vector<Take>& takes, FrameBuffer frames = {});

// On a system whose workers start anew: what tells one its takes, ahead of all rows; and, once the project is open, a
// worker's whole run, which returns at once in a program that is none.
std::string TakesFrame(const std::vector<Take>& takes);
void WorkIfStartedAnew();

}  // namespace lithmark
