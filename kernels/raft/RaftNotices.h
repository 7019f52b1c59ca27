// What the notices of problems 9 and 10 are measured by.
#pragma once

#include "kernels/raft/RaftRun.h"

namespace lithmark {

// Raises the notices of a finished run, whose node values stand in Session; no value is changed. `entered` is the input
// as it was before the run set z and h.
void RaiseRaftNotices(const RaftInput& entered, const RaftResult& result);

}  // namespace lithmark
