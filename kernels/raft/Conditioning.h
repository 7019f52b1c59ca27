// How well the equations of a raft are conditioned: a measure of the run, for its notices.
//
// The condition number of the flexibility matrix F with the inverse K is |F| |K|, the norm being the greatest sum of a
// row's absolute values. A relative change e of the flexibilities changes the node forces by at most e |F| |K| of the
// greatest one. Flexibilities are stored with 24 bits, so e is 2^-24 at best.
//
// On soil that begins at the surface the number stays below the number of nodes. On a clay layer deeper than about one
// node spacing the rows grow alike and it jumps to 1e5 and more.
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark {

// Relative: half a unit of the last of 24 bits.
inline constexpr double kLastBit = 1.0 / (1 << 24);

// What a raft run leaves for its notices; a run starts with a fresh one.
struct RaftMeasures {
    double Condition = 0;  // the condition number, 0 when no system was solved
};
RaftMeasures& MeasuresOfRaft();

// NumericLib::Invert, and the condition number to MeasuresOfRaft: two readings of the matrix beside its inversion.
void InvertFlexibility(int n, const Matrix<Single>& flexibility, Matrix<Single>& stiffness,
                       const std::function<void(double part)>& progress = {});

}  // namespace lithmark
