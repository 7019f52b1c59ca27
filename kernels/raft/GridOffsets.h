// The offsets between the nodes of a rectangular raft, and what a factor between nodes is at each of them.
//
// Grid lines lie on whole millimetres, those next to their even spacing. Two lines with m intervals between them are
// therefore apart by one of two whole numbers of millimetres at most, m times the spacing rounded down or up, and which
// one follows from how far the two lines lie off their even places: with the line's shift a(i), the distance is m times
// the spacing plus a(i) - a(k). A function of the distance that is known at the two is the straight line through them,
//
//     f = A(m) + B(m) (a(i) - a(k)),
//
// exactly, and in the grid the product of two such lines. So the influence of all nodes on all is a sum of convolutions
// over the even grid, before and behind which nodes are weighted by their shifts: one where all distances are even, two
// or four where they are not. No table of node pairs is needed, and nothing is approximated.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark {

// The grid lines of one direction.
class GridOffsets {
  public:
    // The lines' coordinates as texts of metres with three decimals, ascending.
    explicit GridOffsets(const Array<std::string>& lines);

    int Lines() const noexcept { return static_cast<int>(shift_.size()); }
    // False when some distances differ from the even ones.
    bool Even() const noexcept { return even_; }
    // Line i (from 0) off its even place, mm.
    double Shift(int i) const { return shift_[static_cast<std::size_t>(i)]; }
    // The two distances of lines with m intervals between them, m; the same one twice where there is one only.
    Single Near(int m) const { return distances_[static_cast<std::size_t>(m)].Near / 1000.0; }
    Single Far(int m) const { return distances_[static_cast<std::size_t>(m)].Far / 1000.0; }
    // The straight line through the values at the two distances: its value without shifts, and its rise per mm.
    struct Line {
        double Value, Rise;
    };
    Line Through(int m, double atNear, double atFar) const;

  private:
    struct Distances {
        long Near, Far;  // mm
    };
    std::vector<double> shift_;
    std::vector<Distances> distances_;
    double spacing_ = 0;  // mm
    bool even_ = true;
};

// A factor between two nodes by the distances between their grid lines, m.
using OffsetFactor = std::function<Single(Single dx, Single dy)>;

// The coefficients of a factor at each offset, offsets along x first: constant, per shift along x, along y and both.
// Those of a direction without shifts are empty.
struct OffsetCoefficients {
    std::vector<double> Value, AlongX, AlongY, AlongBoth;
};
// The factor at no offset at all is 0; a node's influence on itself is another matter.
OffsetCoefficients CoefficientsOf(const GridOffsets& x, const GridOffsets& y, const OffsetFactor& factor);

}  // namespace lithmark
