// The grid of nodes of a rectangular raft.
//
// nx by ny rectangles, both even, so that the centre of the raft is a node and a middle row exists. The origin is a
// corner of the raft; node numbers run along x first. Lengths in m, areas in m2.
#pragma once

#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "kernels/raft/RaftRun.h"

namespace lithmark {

struct RectangularMesh {
    Integer nx = 0, ny = 0;
    Single HalfA, HalfB;          // of the raft
    Single ElemHalfX, ElemHalfY;  // of an element
    // Coordinate texts with three decimals and "." in every language. The nodes take their coordinates from these
    // texts.
    Array<std::string> GridX, GridY;
    Array<Single> LineX, LineY;  // the coordinates of the grid lines

    // Per node, 1 to Nodes().
    Array<Single> NodeX, NodeY;
    Array<Single> NodeArea;             // tributary area
    Array<Integer> NodeElems;           // elements that meet at the node: 1 corner, 2 edge, 4 inside
    Array<Integer> NodeRow, NodeCol;    // grid indices along y and x
    Array<Single> u, v;                 // distances from the centre
    std::vector<RaftElement> Elements;  // corners (i, j), (i+1, j), (i, j+1), (i+1, j+1)

    int Columns() const noexcept { return nx + 1; }
    int Rows() const noexcept { return ny + 1; }
    int Nodes() const noexcept { return Columns() * Rows(); }
    int Node(int i, int j) const noexcept { return (j - 1) * Columns() + i; }
    int CentreNode() const noexcept { return Node(nx / 2 + 1, ny / 2 + 1); }
    int MiddleRow() const noexcept { return ny / 2 + 1; }
};

// The mesh of a raft A by B. dx and dy are the wished element sizes and take the real ones. DivisionByZero when a side
// is shorter than half its element size; SubscriptRange when a side and its element size differ in sign; Overflow,
// before memory is taken, when the nodes are more than an Integer counts.
RectangularMesh BuildRectangularMesh(Single a, Single b, Single& dx, Single& dy);

}  // namespace lithmark
