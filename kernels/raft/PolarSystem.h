// The flexibility of a circular raft, cut down by its symmetry.
//
// - Turning the mesh by one ray maps it onto itself, so the columns of the first ray's nodes hold the whole matrix.
// - A load on the x axis leaves the lower half of the raft a mirror image of the upper one; a central load leaves the
//   four quarters alike. The system then has the unknowns of a half or of a quarter only, and the columns of nodes that
//   mirror one another are added.
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/RaftEquilibrium.h"

namespace lithmark {

class PolarFlexibility {
  public:
    explicit PolarFlexibility(const PolarMesh& mesh) : mesh_(mesh), firstRay_(1, mesh.NTotal, 1, mesh.NRing) {}

    // Adds factor times an influence on every node from a unit force at every node. `progress` gets 0 to 1.
    void Add(double factor, const PolarInfluence& influence, const std::function<void(double)>& progress);

    // What a unit force at node c does to node r.
    Single operator()(int r, int c) const;

    const PolarMesh& Mesh() const noexcept { return mesh_; }

  private:
    const PolarMesh& mesh_;
    Matrix<Single> firstRay_;  // columns of the centre and of the first ray
};

// The number of unknowns: NHalf when the raft tilts, NQuarter otherwise.
int FoldedSize(const PolarMesh& mesh, LoadCase k);
// How many nodes of the raft each unknown stands for: in the half 2 and on the x axis 1; in the quarter 4, on the two
// axes 2 and 1 for the centre. The quarter ends at the ray whose number equals NRing, which is so for an even ND alone.
Array<Single> FoldedWeights(const PolarMesh& mesh, LoadCase k);
// The folded matrix, FoldedSize by FoldedSize.
Matrix<Single> FoldFlexibility(const PolarFlexibility& flexibility, LoadCase k);

}  // namespace lithmark
