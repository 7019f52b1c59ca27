// One calculation of a circular raft, from the mesh to the middle row, without export and report.
#pragma once

#include "kernels/raft/RaftRun.h"

namespace lithmark {

// Calculates problem 9 or 10, as Session.ProblemType says; z and h of `input` change as the kernel's do. Leaves the
// node and middle-row arrays in Session. Throws Failure.
RaftResult CalculateCircularRaft(RaftInput& input);

}  // namespace lithmark
