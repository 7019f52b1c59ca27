// Influence of loaded nodes on each other in the grid of a rectangular raft.
//
// The factor between two different nodes is that of a point load and depends on their distances |dx| and |dy| alone. In
// a grid these repeat, so a factor is worked out once for each distinct pair of stored (rounded) distances, which gives
// exactly what working it out for each pair of nodes gives. A node's influence on itself is that of its own area, four
// rectangles at most with their corners at the node.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/RectangularMesh.h"

namespace lithmark {

// The distances between grid lines of one direction, each distinct value once.
class GridDistances {
  public:
    explicit GridDistances(const Array<Single>& lines);
    int Count() const noexcept { return static_cast<int>(values_.size()); }
    Single Value(int index) const { return values_[static_cast<std::size_t>(index)]; }
    // Index of the distance of line i (from 1) to the lines 1, 2, ...
    std::span<const int> From(int i) const {
        return std::span<const int>(index_).subspan(static_cast<std::size_t>(i - 1) * lines_, lines_);
    }
    // True when two different lines lie on one another, as coordinates of three decimals can.
    bool LinesCoincide() const noexcept { return linesCoincide_; }

  private:
    std::size_t lines_;
    std::vector<int> index_;      // lines by lines
    std::vector<Single> values_;  // ascending, the first is 0
    bool linesCoincide_ = false;
};

struct Grid {
    explicit Grid(const RectangularMesh& mesh) : Mesh(mesh), DistancesX(mesh.LineX), DistancesY(mesh.LineY) {}
    const RectangularMesh& Mesh;
    GridDistances DistancesX, DistancesY;
};

// One factor between nodes, for each distinct distance.
class OffsetFactors {
  public:
    using Factor = std::function<Single(Single dx, Single dy)>;
    // With `keep` every factor is worked out at most once, which takes memory for all of them; without, once for each
    // pair of rows.
    OffsetFactors(const Grid& grid, Factor factor, bool keep);
    // The factors between two rows, by the index of the distance along x. The one of no distance at all, which only
    // coinciding grid lines need, is 0 otherwise. Valid until the next call.
    std::span<const Single> Between(int row1, int row2);
    // The factor at one offset, worked out anew.
    Single At(Single dx, Single dy) const { return factor_(dx, dy); }

  private:
    void Fill(int distanceY, std::vector<Single>& factors) const;
    const Grid& grid_;
    Factor factor_;
    bool keep_;
    std::vector<std::vector<Single>> rows_;
};

// The flexibility matrix: diagonal(r) on the diagonal, the factors elsewhere.
void FillFlexibility(const Grid& grid, OffsetFactors& factors, const Array<Single>& diagonal,
                     Matrix<Single>& flexibility);

// The sum at each node r over all nodes in their order: own[r - 1] for r itself, factor times force[c - 1] for the
// others. `progress` is told after each row of nodes, 0 to 1.
void SuperposeAtAllNodes(const Grid& grid, OffsetFactors& factors, std::span<const double> own,
                         std::span<const double> force, Array<Single>& sums,
                         const std::function<void(double)>& progress = {});

// What each node carries: its force, and what its own corner factor is multiplied by.
struct NodeLoads {
    std::vector<double> Own, Force;
};
// NodeElems F/NodeArea and F.
NodeLoads LoadsByForce(const RectangularMesh& mesh, const Array<Single>& nodeForce);
// p NodeElems and p NodeArea of a uniform pressure p.
NodeLoads LoadsByPressure(const RectangularMesh& mesh, Single pressure);

// The sum at node t over all nodes in their order: own load times `ownFactor` for t itself, force times
// pointFactor(dx, dy) for the others, each term times `scale`.
template <typename PointFactor>
Single SuperposeAt(const RectangularMesh& mesh, int t, const NodeLoads& loads, Single ownFactor,
                   const PointFactor& pointFactor, double scale = 1) {
    Single sum;
    const auto self = static_cast<std::size_t>(t - 1);
    for (std::size_t i = 0; i < loads.Force.size(); ++i) {
        const int node = static_cast<int>(i) + 1;
        if (i == self)
            sum += loads.Own[i] * ownFactor * scale;
        else
            sum += pointFactor(mesh.NodeX(node) - mesh.NodeX(t), mesh.NodeY(node) - mesh.NodeY(t)) * loads.Force[i] *
                   scale;
    }
    return sum;
}

}  // namespace lithmark
