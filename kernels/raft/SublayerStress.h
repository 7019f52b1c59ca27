// The sublayers of a thick clay under a rectangular raft, with the mean stress in each under node forces.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/FlexibilityOperator.h"
#include "kernels/raft/RaftSoil.h"
#include "kernels/raft/RectangularInfluence.h"

namespace lithmark {

class SublayerStress {
  public:
    SublayerStress(const RectangularMesh& mesh, const RaftInput& input, const ClayLayer& clay);
    virtual ~SublayerStress() = default;
    SublayerStress(const SublayerStress&) = delete;
    SublayerStress& operator=(const SublayerStress&) = delete;

    // The tangent flexibility at the initial stresses. Holds on to this object.
    NodeInfluence Tangent() const;
    // The settlement [m] of each node after the true law; a negative stress increase counts as none.
    void Settle(const Array<Single>& nodeForce, Array<Single>& settlement,
                const std::function<void(double part)>& progress);

  protected:
    // The mean stress increase in sublayer k below each node.
    virtual void Increase(int k, const Array<Single>& nodeForce, Array<Single>& increase,
                          const std::function<void(double part)>& progress) = 0;
    // The mean stress in sublayer k from a unit force at another node, and from a node's own.
    OffsetFactor PointFactor(int k) const;
    Single OwnFactor(int k, int node) const;
    int Layers() const { return clay_.M; }

  private:
    Single TangentFactor(Single dx, Single dy) const;
    double Compliance(int k) const;

    const RectangularMesh& mesh_;
    const ClayLayer& clay_;
    struct Interval {
        Single Top, Bottom, Corner;  // depths, and the factor of a node's own rectangles
    };
    std::vector<Interval> layers_;
};

// By sums over all pairs of nodes, in Singles.
class SummedSublayers : public SublayerStress {
  public:
    SummedSublayers(const Grid& grid, const RaftInput& input, const ClayLayer& clay);

  protected:
    void Increase(int k, const Array<Single>& nodeForce, Array<Single>& increase,
                  const std::function<void(double part)>& progress) override;

  private:
    const Grid& grid_;
    std::deque<OffsetFactors> point_;
};

// By operators, in 64 bits.
class OperatorSublayers : public SublayerStress {
  public:
    OperatorSublayers(const RectangularMesh& mesh, const OffsetGrid& grid, const RaftInput& input,
                      const ClayLayer& clay);

  protected:
    void Increase(int k, const Array<Single>& nodeForce, Array<Single>& increase,
                  const std::function<void(double part)>& progress) override;

  private:
    FlexibilityOperator Operator(int k) const;

    const OffsetGrid& grid_;
    std::deque<FlexibilityOperator> kept_;
};

}  // namespace lithmark
