// How much work a raft is.
#pragma once

#include "core/Session.h"

namespace lithmark {

struct RaftSize {
    long Nodes = 0;      // 0 for a problem that is no raft, and where the preferences give no mesh
    double Seconds = 0;  // that they take on a common machine, as a rule
};

RaftSize SizeOf(const SessionRecord& draft);

// A raft of more nodes than these that takes a second or longer is worked out when it is asked for: in fact a fine
// circle, whose dense system grows with the third power of its nodes. A rectangle is solved by its operator in time.
inline constexpr long kMostNodesUnasked = 1000;
inline bool WaitsToBeAsked(const RaftSize& size) {
    return size.Nodes > kMostNodesUnasked && size.Seconds >= 1;
}

}  // namespace lithmark
