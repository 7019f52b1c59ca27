// The mesh of a uniformly loaded circle: a central disc and rings of one width, cut into elements with a node each.
#pragma once

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// A node with the area that it stands for [m, m2].
struct CircleNode {
    Single X, Y, Area;
};

// Nodes 1 .. N^2 + 1.
using CircleMesh = Array<CircleNode>;

// The mesh of a circle of radius a [m] with N divisions of the diameter. Node 1 is the centre; the others run outward
// along one spoke after the other, 2 N spokes in all. The outermost ring is half as wide and its nodes lie on the edge.
// N must be even for the mesh to close; an odd N is meshed all the same. Overflow, before memory is taken, when there
// are more nodes than an Integer counts; DivisionByZero for N = 0, SubscriptRange for a negative N.
CircleMesh BuildCircleMesh(Single a, Integer N);

}  // namespace lithmark
