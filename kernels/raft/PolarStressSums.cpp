#include "kernels/raft/PolarStressSums.h"

#include <algorithm>
#include <cmath>

#include "services/numerics/SharedBlocks.h"

namespace lithmark {

namespace {

using Stored = Single::Storage;

constexpr int kBlock = 32;  // targets that are worked side by side

std::size_t UpToBlocks(int count) {
    return static_cast<std::size_t>((count + kBlock - 1) / kBlock) * kBlock;
}

inline Stored Rounded(double value) {
    return static_cast<Stored>(value);
}

// The targets' squared distances from one source, as an expression has them and stored.
struct Distances {
    double Square[kBlock], StoredSquare[kBlock];

    void From(double sourceX, double sourceY, const Stored* x, const Stored* y) {
        for (int t = 0; t < kBlock; ++t) {
            const double dx = Rounded(x[t] - sourceX), dy = Rounded(y[t] - sourceY);
            const double r = Rounded(std::sqrt(dx * dx + dy * dy));
            Square[t] = r * r;
            StoredSquare[t] = Rounded(r * r);
        }
    }
};

// The terms of MeanPointFactor at a depth: r^2/U^(3/2) and 3/U^(1/2) with U = r^2 + z^2.
struct Boundary {
    double First[kBlock], Second[kBlock];

    void At(double depth, const Distances& r) {
        const double square = depth * depth;
        for (int t = 0; t < kBlock; ++t) {
            const double U = Rounded(r.Square[t] + square), root = std::sqrt(U);
            First[t] = r.StoredSquare[t] / (U * root);
            Second[t] = 3 / root;
        }
    }
};

// sum += MeanPointFactor force
void AddFactors(const Boundary& top, const Boundary& bottom, double divisor, double force, Stored* sum) {
    for (int t = 0; t < kBlock; ++t) {
        Stored factor = Rounded(bottom.First[t]);
        factor = Rounded(factor - bottom.Second[t]);
        factor = Rounded(factor - top.First[t]);
        factor = Rounded(top.Second[t] + factor);
        factor = Rounded(factor / divisor);
        sum[t] = Rounded(sum[t] + factor * force);
    }
}

}  // namespace

PolarStressSums::PolarStressSums(const PolarMesh& mesh, std::vector<StressInterval> layers, int targets)
    : mesh_(mesh), layers_(std::move(layers)), targets_(targets), stride_(UpToBlocks(targets)) {
    for (const auto& [places, nodes] : {std::pair{&x_, &mesh.NodeX}, std::pair{&y_, &mesh.NodeY}}) {
        for (const Single place : *nodes) places->push_back(place.Stored());
        places->resize(std::max(places->size(), stride_));
    }
    constexpr double kGreatest = 1e38;
    for (const StressInterval& layer : layers_)
        for (const double depth : {layer.Top, layer.Bottom})
            if (!(Square(2 * mesh.R) + Square(depth) < kGreatest)) inRange_ = false;
}

int PolarStressSums::UsefulThreads() const {
    constexpr double kWorthAThread = 2e5;  // factors: a millisecond or so
    const double factors = 1.0 * targets_ * mesh_.NTotal * static_cast<double>(layers_.size());
    return ProcessorsUpTo(static_cast<int>(std::min(factors / kWorthAThread, 1.0 * targets_ / kBlock)));
}

void PolarStressSums::SumBlock(std::size_t first, const Array<Single>& force) {
    Distances r;
    Boundary boundary[2];
    std::size_t source = 0;
    for (const Single f : force.Items()) {
        r.From(x_[source], y_[source], x_.data() + first, y_.data() + first);
        const std::size_t self = source - first;  // beyond the block when the source is none of its targets
        int bottom = 0;
        for (std::size_t k = 0; k < layers_.size(); ++k) {
            const auto [z1, z2] = layers_[k];
            if (k == 0 || z1 != layers_[k - 1].Bottom) boundary[bottom].At(z1, r);
            const int top = bottom;
            bottom = 1 - bottom;
            boundary[bottom].At(z2, r);
            Stored* const sum = sums_.data() + k * stride_ + first;
            const Stored before = self < kBlock ? sum[self] : Stored(0);
            AddFactors(boundary[top], boundary[bottom], (z2 - z1) * (PI + PI), f, sum);
            if (self < kBlock) sum[self] = Rounded(before + own_[k * stride_ + source]);
        }
        ++source;
    }
}

void PolarStressSums::Sum(const Array<Single>& force, const Terms& terms, int threads,
                          const std::function<void(double part)>& progress) {
    const int layers = static_cast<int>(layers_.size());
    sums_.assign(layers_.size() * stride_, Stored(0));
    own_.assign(sums_.size(), 0);
    for (int k = 0; k < layers; ++k)
        for (int t = 1; t <= targets_; ++t) own_[Place(k, t)] = terms.Own(k, t);
    if (inRange_)
        ShareBlocks(
            targets_, kBlock, threads, [&](int first, int) { SumBlock(static_cast<std::size_t>(first), force); },
            progress);
    for (int t = 1; t <= targets_; ++t) {
        for (int k = 0; k < layers; ++k) {
            Stored& sum = sums_[Place(k, t)];
            if (!inRange_ || !std::isfinite(sum)) sum = terms.Plain(k, t).Stored();
        }
    }
}

}  // namespace lithmark
