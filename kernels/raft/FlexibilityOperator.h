// The flexibility of a rectangular raft as an operator: what forces on all nodes do to all nodes, without a matrix.
//
// A node's influence on itself is its own; that on another one depends on the offset (GridOffsets.h) and is worked as
// convolutions by the Fourier transform. Expressions and sums run in 64 bits; a factor is the Single that a matrix
// would hold. The digits do not depend on the machine.
#pragma once

#include <span>
#include <vector>

#include "kernels/raft/GridOffsets.h"
#include "kernels/raft/RectangularMesh.h"
#include "services/numerics/GridFourier.h"

namespace lithmark {

// What the operators of one mesh share.
class OffsetGrid {
  public:
    explicit OffsetGrid(const RectangularMesh& mesh);

    const GridOffsets& X() const noexcept { return x_; }
    const GridOffsets& Y() const noexcept { return y_; }
    const GridFourier& Fourier() const noexcept { return fourier_; }
    std::size_t Nodes() const noexcept { return fourier_.FieldSize(); }
    // Per node: its shift along x and along y, mm.
    const std::vector<double>& ShiftX() const noexcept { return shiftX_; }
    const std::vector<double>& ShiftY() const noexcept { return shiftY_; }

  private:
    GridOffsets x_, y_;
    GridFourier fourier_;
    std::vector<double> shiftX_, shiftY_;
};

class FlexibilityOperator {
  public:
    // The factor between two different nodes, and each node's influence on itself. Failures are the factor's.
    FlexibilityOperator(const OffsetGrid& grid, const OffsetFactor& factor, std::vector<double> own);

    // y(i) = F x(i) for each vector.
    void Apply(std::span<const std::vector<double>> x, std::span<std::vector<double>> y) const;
    // The factors without shifts, and the mean of the own influences at no offset.
    const std::vector<double>& MeanFactors() const noexcept { return mean_; }
    // What it takes in memory.
    std::size_t Bytes() const noexcept;

  private:
    void ApplyPair(const std::vector<double>& x1, const std::vector<double>* x2, std::vector<double>& y1,
                   std::vector<double>* y2) const;

    const OffsetGrid& grid_;
    std::vector<double> own_, mean_;
    std::vector<double> value_, alongX_, alongY_, alongBoth_;  // spectra; empty without shifts
};

}  // namespace lithmark
