// Proportions: lengths of a view to scale up to one to eight; a longer one is cut to eight times the shortest and has a
// break. Where a point lies beside a load or a raft goes by these lengths, and does not change them.
#pragma once

#include <initializer_list>
#include <vector>

namespace lithmark {

struct DrawnLength {
    double Length = 0;    // as it is drawn, in the unit and with the sign of the value
    bool Broken = false;  // cut: what is drawn is shorter than it is
};

// 0 for what is no number.
double Usable(double value);

// What is no number counts as 0, and takes no part in what is the shortest.
std::vector<DrawnLength> Proportions(std::initializer_list<double> values);
// The greatest of lengths as drawn.
double Longest(const std::vector<DrawnLength>& lengths);

// Of half the load or the depth: a place farther out is cut.
inline constexpr double kFarthest = 1.5;

// A coordinate from the middle of something that is `half` as long on each side and drawn `drawnHalf` long: inside what
// is drawn when it is inside, to scale beyond it, cut with a break beyond `most`.
DrawnLength Coordinate(double value, double half, double drawnHalf, double most);

}  // namespace lithmark
