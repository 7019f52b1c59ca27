// Proportions: lengths of a view to scale up to one to eight; a longer one is cut to eight times the shortest and has a
// break.
#pragma once

#include <initializer_list>
#include <vector>

namespace lithmark {

struct DrawnLength {
    double Length = 0;    // as it is drawn, in the unit and with the sign of the value
    bool Broken = false;  // cut: what is drawn is shorter than it is
};

// What is no number counts as 0, and takes no part in what is the shortest.
std::vector<DrawnLength> Proportions(std::initializer_list<double> values);

}  // namespace lithmark
