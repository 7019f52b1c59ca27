#include "kernels/raft/SublayerStress.h"

#include <algorithm>

#include "kernels/elastic/LayerFactors.h"

namespace lithmark {

SublayerStress::SublayerStress(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay)
    : mesh_(mesh), clay_(clay) {
    for (int k = 1; k <= clay.M; ++k) {
        const Single z1 = SublayerTop(input, clay, k), z2 = z1 + clay.DepthStep;
        layers_.push_back({z1, z2, MeanCornerFactor(mesh.ElemHalfX, mesh.ElemHalfY, z1, z2)});
    }
}

OffsetFactor SublayerStress::PointFactor(int k) const {
    const Interval& layer = layers_[static_cast<std::size_t>(k - 1)];
    return [z1 = layer.Top, z2 = layer.Bottom](Single dx, Single dy) { return MeanPointFactor(dx, dy, z1, z2); };
}

Single SublayerStress::OwnFactor(int k, int node) const {
    const Interval& layer = layers_[static_cast<std::size_t>(k - 1)];
    return Quotient(mesh_.NodeElems(node), mesh_.NodeArea(node)) * layer.Corner;
}

double SublayerStress::Compliance(int k) const {
    return Quotient(clay_.LayerFactor, clay_.SubStress(k));
}

Single SublayerStress::TangentFactor(Single dx, Single dy) const {
    Single sum;
    for (int k = 1; k <= clay_.M; ++k) {
        const Interval& layer = layers_[static_cast<std::size_t>(k - 1)];
        sum += Compliance(k) * MeanPointFactor(dx, dy, layer.Top, layer.Bottom);
    }
    return sum;
}

NodeInfluence SublayerStress::Tangent() const {
    NodeInfluence tangent;
    tangent.Own.Redim(1, mesh_.Nodes());
    for (int r = 1; r <= mesh_.Nodes(); ++r)
        for (int k = 1; k <= clay_.M; ++k) tangent.Own(r) += Compliance(k) * OwnFactor(k, r);
    tangent.Point = [this](Single dx, Single dy) { return TangentFactor(dx, dy); };
    return tangent;
}

void SublayerStress::Settle(const Array<Single>& nodeForce, Array<Single>& settlement,
                            const std::function<void(double part)>& progress) {
    Array<Single> increase;
    for (Single& s : settlement) s = 0;
    for (int k = 1; k <= clay_.M; ++k) {
        Increase(k, nodeForce, increase, [&](double part) { progress((k - 1 + part) / clay_.M); });
        for (int r = 1; r <= mesh_.Nodes(); ++r) {
            const double d = std::max<double>(increase(r), 0);
            settlement(r) += clay_.LayerFactor * LogStressRatio(clay_.SubStress(k), d);
        }
    }
}

SummedSublayers::SummedSublayers(const Grid& grid, const RaftInput& input, const ClayLayer& clay)
    : SublayerStress(grid.Mesh, input, clay), grid_(grid) {
    // Factors are kept while they take less than a twentieth of what the two matrices take, or little anyway.
    const double perLayer = static_cast<double>(grid.DistancesX.Count()) * grid.DistancesY.Count();
    const double matrices = 2.0 * grid.Mesh.Nodes() * grid.Mesh.Nodes();
    const bool keep = perLayer * clay.M <= std::max(0.05 * matrices, 2.5e5);
    for (int k = 1; k <= clay.M; ++k) point_.emplace_back(grid, PointFactor(k), keep);
}

void SummedSublayers::Increase(int k, const Array<Single>& nodeForce, Array<Single>& increase,
                               const std::function<void(double part)>& progress) {
    const std::vector<double> force(nodeForce.begin(), nodeForce.end());
    std::vector<double> own(force.size());
    for (std::size_t i = 0; i < own.size(); ++i) own[i] = OwnFactor(k, static_cast<int>(i) + 1) * force[i];
    SuperposeAtAllNodes(grid_, point_[static_cast<std::size_t>(k - 1)], own, force, increase, progress);
}

OperatorSublayers::OperatorSublayers(const RectangularMesh& mesh, const OffsetGrid& grid, const RaftInput& input,
                                     const ClayLayer& clay)
    : SublayerStress(mesh, input, clay), grid_(grid) {
    // Operators are kept while they take little; made anew in each pass they cost as much as two products.
    constexpr double kMostBytes = 1e8;
    for (int k = 1; k <= clay.M; ++k) {
        kept_.push_back(Operator(k));
        if (k == 1 && static_cast<double>(kept_.front().Bytes()) * clay.M > kMostBytes) break;
    }
}

FlexibilityOperator OperatorSublayers::Operator(int k) const {
    std::vector<double> own;
    for (std::size_t i = 0; i < grid_.Nodes(); ++i) own.push_back(OwnFactor(k, static_cast<int>(i) + 1));
    return {grid_, PointFactor(k), std::move(own)};
}

void OperatorSublayers::Increase(int k, const Array<Single>& nodeForce, Array<Single>& increase,
                                 const std::function<void(double part)>& progress) {
    const std::vector<double> force(nodeForce.begin(), nodeForce.end());
    std::vector<double> sums(force.size());
    const auto place = static_cast<std::size_t>(k - 1);
    if (place < kept_.size())
        kept_[place].Apply({&force, 1}, {&sums, 1});
    else
        Operator(k).Apply({&force, 1}, {&sums, 1});
    increase.Redim(1, static_cast<int>(sums.size()));
    for (std::size_t i = 0; i < sums.size(); ++i) increase(static_cast<int>(i) + 1) = sums[i];
    progress(1);
}

}  // namespace lithmark
