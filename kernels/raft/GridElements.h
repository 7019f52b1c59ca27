// The four-node elements of a rectangular grid of nodes.
#pragma once

#include "base/Array.h"
#include "base/Integer.h"

namespace lithmark {

// Lists the grid cells whose four corners are all active, i from 1 to nx fastest, j from 1 to ny: count, and the node
// numbers of the corners (i, j), (i+1, j), (i, j+1), (i+1, j+1). `active` (0: no node) and `nodeNo` have nx+1 by ny+1
// entries. Overflow beyond 32767 elements.
void BuildGridElements(Integer& count, int nx, int ny, const Matrix<Integer>& active, const Matrix<Integer>& nodeNo,
                       Array<Integer>& n1, Array<Integer>& n2, Array<Integer>& n3, Array<Integer>& n4);

}  // namespace lithmark
