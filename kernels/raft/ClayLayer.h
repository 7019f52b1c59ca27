// A normally consolidated clay layer under a raft, after the semi-logarithmic law (Terzaghi, 1925).
//
// A sublayer of thickness t with initial vertical stress s0 that gets the stress increase d on settles by
// t Cc/(1 + eo) log10((s0 + d)/s0). A layer thinner than the depth step is taken as one; a thicker one is worked in
// sublayers. Lengths in m, stresses in kN/m2, settlements of the columns in cm.
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "kernels/raft/RaftRun.h"

namespace lithmark {

struct ClayLayer {
    bool Thick = false;
    Single C;                 // Cc/(1 + eo)
    Single S0;                // thin clay: initial stress in the middle of the layer
    Single DepthStep;         // thick clay: thickness of a sublayer
    Single LayerFactor;       // thick clay: DepthStep Cc/(1 + eo)/ln 10
    Integer M = 0;            // thick clay: number of sublayers
    Array<Single> SubStress;  // thick clay: initial stress in the middle of each sublayer
};

// Cc/(1 + eo). DivisionByZero for eo = -1.
Single CompressionRatio(const RaftInput& input);
// depthStep Cc/(1 + eo)/ln 10.
Single LayerFactorOf(const RaftInput& input, Single depthStep);

// The clay of a numerical analysis: thin when h < depthStep. Otherwise M is the smallest whole number not below
// h/depthStep, the sublayers share h evenly and the top of the layer carries Po.
ClayLayer NumericalClay(const RaftInput& input, Single depthStep);
// The clay of an analytical analysis down to the limiting depth h: sublayers of the depth step, from the surface.
ClayLayer AnalyticalClay(const RaftInput& input, Single depthStep);

// Upper edge of sublayer k below the surface; its lower edge is the upper one plus DepthStep.
inline Single SublayerTop(const RaftInput& input, const ClayLayer& clay, int k) {
    return input.z + (k - 1) * clay.DepthStep;
}

// ln((initial + increase)/initial). DivisionByZero for initial = 0, InvalidArgument when the quotient is not positive.
double LogStressRatio(double initial, double increase);

// The mean stress increase [kN/m2] between two depths.
using MeanStress = std::function<Single(Single z1, Single z2)>;

// One column of soil below a node that the analytical analysis works down step by step from the surface.
class ClayColumn {
  public:
    ClayColumn(Single depthStep, Single gamma, Single layerFactor);
    // Depths of the sublayer that is next.
    Single Top() const noexcept { return zTop_; }
    Single Bottom() const { return zTop_ + depthStep_; }
    // Adds the settlement of the next sublayer under its mean stress increase and goes one step down.
    void Add(Single meanIncrease);
    Single Settlement() const noexcept { return s_; }

  private:
    Single depthStep_, gamma_, layerFactor_, zTop_, initial_, s_;
};

// Works a fresh column down until a sublayer adds less than `tolerance` [cm] and returns the limiting depth.
//
// It always ends: the settlement is a Single that stops changing once the increments, which fall with the third power
// of the depth, drop below its last digit; and should they not, the depth itself stops growing after some 17 million
// steps and the mean stress over no depth is a DivisionByZero. A tolerance that no difference can be below (0 or less)
// fails so at once.
Single SearchLimitingDepth(ClayColumn& column, double tolerance, const MeanStress& meanStress);
// Works a fresh column down to the limiting depth that another node has set, reached exactly.
void SettleToDepth(ClayColumn& column, Single limitingDepth, const MeanStress& meanStress);

// Settlement [cm] of a flexible raft by its mean stress increase: problem 10 in every analysis but the analytical one
// by Es.
Single FlexibleClaySettlement(const RaftInput& input, const ClayLayer& clay, const MeanStress& meanStress);

}  // namespace lithmark
