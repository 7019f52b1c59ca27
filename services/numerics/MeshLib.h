// MeshLib: edges of the element mesh of a raft export.
#pragma once

#include <array>
#include <vector>

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark::MeshLib {

// An element by its corners, going round it. Corners stand from index 1 on; index 0 stays unused.
struct ElementRecord {
    long Count = 0;                 // corners, 0 to 4
    std::array<Integer, 5> Node{};  // node number of each corner
    std::array<long, 5> Edge{};     // number of the edge from this corner to the next, from the last to the first
};

// What the mesh file tells about the mesh as a whole, in its order of writing. The mesh of a raft is laid out in the
// raft's own axes, so its offset and its turn are always 0.
struct MeshValues {
    long EdgeCount = 0;
    Single OffsetX, OffsetY;  // m
    Single Turn;              // degrees
};

// Numbers the edges of all elements from 1 in the order of first appearance and fills in `Edge`; the two elements at an
// edge get the same number. SubscriptRange when a corner count is outside 0 to 4.
MeshValues BuildEdges(std::vector<ElementRecord>& records);

}  // namespace lithmark::MeshLib
