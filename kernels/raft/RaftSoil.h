// The soil under a rectangular raft as a linear system: what forces on its nodes and settlements under them have to do
// with one another. Two ways to solve it stand behind it: a matrix and its inverse (MatrixSoil.h), and for large rafts
// an operator with conjugate gradients (OperatorSoil.h).
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/raft/GridOffsets.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/RaftRun.h"
#include "kernels/raft/ThinClay.h"

namespace lithmark {

// The influence of a unit force at one node on another, and of each node's own unit force.
struct NodeInfluence {
    OffsetFactor Point;
    Array<Single> Own;
};

class RaftSoil {
  public:
    using Progress = std::function<void(double part)>;

    RaftSoil() = default;
    virtual ~RaftSoil() = default;
    RaftSoil(const RaftSoil&) = delete;
    RaftSoil& operator=(const RaftSoil&) = delete;

    virtual RaftEquilibrium Equilibrium(LoadCase k) const = 0;
    virtual UnitMoments Moments(const RaftEquilibrium& equilibrium) const = 0;
    // What forces stand behind settlements, added up one after the other where a matrix is added up.
    virtual void Forces(const Array<Single>& settlement, Array<Single>& force) const = 0;
    // The same as NumericLib::MatVec adds up.
    virtual void ExtraForces(const Array<Single>& settlement, Array<Single>& force, const Progress& progress) const = 0;
    virtual void Settlements(const Array<Single>& force, Array<Single>& settlement, const Progress& progress) const = 0;
};

}  // namespace lithmark
