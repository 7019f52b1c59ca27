// Compiled with LITHMARK_WIDE_SINGLE in a namespace of its own; see tests/CMakeLists.txt.
#include "raft_wide/CircleValues.inc"

static_assert(sizeof(lithmark::Single) == sizeof(double));

raftwide::Values raftwide::WideValues(const Case& c) {
    return lithmark::CircleValues(c);
}
