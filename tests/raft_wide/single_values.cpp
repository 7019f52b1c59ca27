#include "raft_wide/CircleValues.inc"

raftwide::Values raftwide::SingleValues(const Case& c) {
    return lithmark::CircleValues(c);
}
