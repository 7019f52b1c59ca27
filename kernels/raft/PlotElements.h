// The plot mesh of a raft: what the export files and the contour window draw it by.
#pragma once

#include <vector>

#include "kernels/elastic/PolarMesh.h"

namespace lithmark {

// One element of the plot mesh: corner count and corner nodes in the order of the mesh file.
struct RaftElement {
    int Count = 4;
    int Nodes[4] = {0, 0, 0, 0};
};

// The elements for plotting: between each two neighbouring rays a triangle (centre, the first nodes of the two rays)
// and then quadrangles outward (a, a+1 on the ray, b, b+1 on the next one). NTotal - 1 in all for an even ND.
// SubscriptRange when the rays need more nodes than the mesh has, which only an odd ND does.
std::vector<RaftElement> PlotElements(const PolarMesh& mesh);

}  // namespace lithmark
