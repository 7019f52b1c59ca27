// The mean stress in sublayers below many nodes of a circular raft at once.
//
// The factor of a force at another node is MeanPointFactor's: square roots and divisions alone, which a processor works
// for several targets side by side with the digits of one. What consecutive sublayers share, the distance and the terms
// of a common boundary, is worked out once. Each sum is a Single accumulated in node order, so it is what SumOfForces
// and SumOfUnitForces give, bit for bit, on every machine and with any number of threads.
#pragma once

#include <functional>
#include <vector>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/elastic/PolarMesh.h"

namespace lithmark {

struct StressInterval {
    Single Top, Bottom;  // depths z1 < z2, m
};

class PolarStressSums {
  public:
    // Below the nodes 1 to `targets` in each of the intervals.
    PolarStressSums(const PolarMesh& mesh, std::vector<StressInterval> layers, int targets);

    // What the sums need beside the factors between different nodes; layers count from 0.
    struct Terms {
        // What node t adds to itself.
        std::function<double(int layer, int t)> Own;
        // The whole sum, one term after the other. Asked for where a sum leaves the range of a Single or a factor does
        // not exist, so that the run fails as it would without this class.
        std::function<Single(int layer, int t)> Plain;
    };
    // Sums up the forces on all nodes. `progress` is told by this thread alone, 0 to 1; what it throws leaves.
    void Sum(const Array<Single>& force, const Terms& terms, int threads,
             const std::function<void(double part)>& progress);
    // As many threads as pay on this machine.
    int UsefulThreads() const;

    // The mean stress of the last Sum.
    Single At(int layer, int t) const { return sums_[Place(layer, t)]; }

  private:
    using Stored = Single::Storage;

    std::size_t Place(int layer, int t) const {
        return static_cast<std::size_t>(layer) * stride_ + static_cast<std::size_t>(t - 1);
    }
    void SumBlock(std::size_t first, const Array<Single>& force);

    const PolarMesh& mesh_;
    const std::vector<StressInterval> layers_;
    const int targets_;
    const std::size_t stride_;  // targets, filled up to whole blocks
    bool inRange_ = true;       // no square of a distance overflows
    std::vector<Stored> x_, y_;
    std::vector<Stored> sums_;
    std::vector<double> own_;
};

}  // namespace lithmark
