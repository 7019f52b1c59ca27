#include "kernels/raft/RectangularInfluence.h"

#include <algorithm>
#include <cmath>

#include "kernels/raft/RaftProgress.h"

namespace lithmark {

GridDistances::GridDistances(const Array<Single>& lines) : lines_(lines.Size()), index_(lines_ * lines_) {
    const auto distance = [&lines](int i, int k) { return Single(std::abs(lines(i) - lines(k))); };
    const auto keepDistinct = [this] {
        std::sort(values_.begin(), values_.end());
        values_.erase(std::unique(values_.begin(), values_.end()), values_.end());
    };
    // Most distances are met again and again; the list is thinned out whenever it has doubled.
    std::size_t room = 2 * lines_;
    for (int i = 1; i <= lines.Upper(); ++i) {
        for (int k = 1; k <= i; ++k) {
            values_.push_back(distance(i, k));
            if (k < i && values_.back() == 0) linesCoincide_ = true;
        }
        if (values_.size() < room) continue;
        keepDistinct();
        room = 2 * (values_.size() + lines_);
    }
    keepDistinct();
    for (int i = 1; i <= lines.Upper(); ++i)
        for (int k = 1; k <= lines.Upper(); ++k)
            index_[static_cast<std::size_t>(i - 1) * lines_ + static_cast<std::size_t>(k - 1)] =
                static_cast<int>(std::lower_bound(values_.begin(), values_.end(), distance(i, k)) - values_.begin());
}

OffsetFactors::OffsetFactors(const Grid& grid, Factor factor, bool keep)
    : grid_(grid),
      factor_(std::move(factor)),
      keep_(keep),
      rows_(keep ? static_cast<std::size_t>(grid.DistancesY.Count()) : 1) {}

std::span<const Single> OffsetFactors::Between(int row1, int row2) {
    const int distanceY = grid_.DistancesY.From(row1)[static_cast<std::size_t>(row2 - 1)];
    std::vector<Single>& factors = rows_[keep_ ? static_cast<std::size_t>(distanceY) : 0];
    if (!keep_ || factors.empty()) Fill(distanceY, factors);
    return factors;
}

void OffsetFactors::Fill(int distanceY, std::vector<Single>& factors) const {
    const bool coincide = grid_.DistancesX.LinesCoincide() || grid_.DistancesY.LinesCoincide();
    const Single dy = grid_.DistancesY.Value(distanceY);
    factors.resize(static_cast<std::size_t>(grid_.DistancesX.Count()));
    for (std::size_t i = 0; i < factors.size(); ++i) {
        const Single dx = grid_.DistancesX.Value(static_cast<int>(i));
        factors[i] = dx == 0 && dy == 0 && !coincide ? Single(0) : factor_(dx, dy);
    }
}

void FillFlexibility(const Grid& grid, OffsetFactors& factors, const Array<Single>& diagonal,
                     Matrix<Single>& flexibility) {
    const RectangularMesh& mesh = grid.Mesh;
    const int n = mesh.Nodes(), columns = mesh.Columns();
    flexibility.Redim(1, n, 1, n);
    const auto progress = ProgressBetween(0, kFlexibilityDone);
    for (int j = 1; j <= mesh.Rows(); ++j) {
        progress(static_cast<double>(j) / mesh.Rows());
        for (int k = 1; k <= mesh.Rows(); ++k) {
            const std::span<const Single> between = factors.Between(j, k);
            for (int i = 1; i <= columns; ++i) {
                const std::span<const int> index = grid.DistancesX.From(i);
                const auto block =
                    flexibility.Row(mesh.Node(i, j)).subspan(static_cast<std::size_t>(mesh.Node(1, k) - 1));
                for (std::size_t c = 0; c < index.size(); ++c) block[c] = between[static_cast<std::size_t>(index[c])];
            }
        }
    }
    for (int r = 1; r <= n; ++r) flexibility(r, r) = diagonal(r);
}

void SuperposeAtAllNodes(const Grid& grid, OffsetFactors& factors, std::span<const double> own,
                         std::span<const double> force, Array<Single>& sums,
                         const std::function<void(double)>& progress) {
    const RectangularMesh& mesh = grid.Mesh;
    const auto columns = static_cast<std::size_t>(mesh.Columns());
    sums.Redim(1, mesh.Nodes());
    // The sums of a row of targets grow side by side, each in the order of the nodes. An overflow stays in a sum and is
    // found when the sum is stored.
    std::vector<Single::Storage> row(columns);
    for (int j = 1; j <= mesh.Rows(); ++j) {
        std::fill(row.begin(), row.end(), Single::Storage(0));
        for (int k = 1; k <= mesh.Rows(); ++k) {
            const std::span<const Single> between = factors.Between(j, k);
            for (std::size_t c = 0; c < columns; ++c) {
                const auto source = static_cast<std::size_t>(mesh.Node(1, k) - 1) + c;
                const std::span<const int> index = grid.DistancesX.From(static_cast<int>(c) + 1);
                const double f = force[source];
                const auto add = [&](std::size_t first, std::size_t last) {
                    for (std::size_t t = first; t < last; ++t)
                        row[t] = static_cast<Single::Storage>(row[t] + between[static_cast<std::size_t>(index[t])] * f);
                };
                if (k != j) {
                    add(0, columns);
                } else {
                    add(0, c);
                    row[c] = static_cast<Single::Storage>(row[c] + own[source]);
                    add(c + 1, columns);
                }
            }
        }
        for (std::size_t t = 0; t < columns; ++t) {
            if (!std::isfinite(row[t])) Fail(FailureKind::Overflow);
            sums(mesh.Node(static_cast<int>(t) + 1, j)) = row[t];
        }
        if (progress) progress(static_cast<double>(j) / mesh.Rows());
    }
}

NodeLoads LoadsByForce(const RectangularMesh& mesh, const Array<Single>& nodeForce) {
    NodeLoads loads;
    for (int i = 1; i <= mesh.Nodes(); ++i) {
        loads.Own.push_back(Quotient(mesh.NodeElems(i) * nodeForce(i), mesh.NodeArea(i)));
        loads.Force.push_back(nodeForce(i));
    }
    return loads;
}

NodeLoads LoadsByPressure(const RectangularMesh& mesh, Single pressure) {
    NodeLoads loads;
    for (int i = 1; i <= mesh.Nodes(); ++i) {
        loads.Own.push_back(pressure * mesh.NodeElems(i));
        loads.Force.push_back(pressure * mesh.NodeArea(i));
    }
    return loads;
}

}  // namespace lithmark
