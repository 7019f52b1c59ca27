// How far a numerical raft run is: the shares of its stages, and what tells them.
#pragma once

#include <functional>

#include "services/SharedServices.h"

namespace lithmark {

// Up to where each stage brings the run. In thick clay the iteration follows, then the flexible comparison.
inline constexpr double kFlexibilityDone = 0.1, kInverseDone = 0.75, kEquilibriumDone = 0.8, kSettled = 0.95;

// Tells the part of a stage that is done, 0 to 1. Throws Cancelled as ReportProgress does.
inline std::function<void(double part)> ProgressBetween(double from, double to) {
    return [from, to](double part) { SharedServices().ReportProgress(from + (to - from) * part); };
}

}  // namespace lithmark
