// The table for a check by hand of the problems 9 and 10.
#pragma once

#include "kernels/raft/RaftRun.h"

namespace lithmark {

// The nodes with area, force, pressure, settlement and moments about the centre, their sums, and the load that the sums
// are held against.
void AddNodeTable(const RaftResult& result);

}  // namespace lithmark
