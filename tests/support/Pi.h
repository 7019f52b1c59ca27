#pragma once

#include <numbers>

namespace lithmark::tests {

inline constexpr double kPi = std::numbers::pi;

}  // namespace lithmark::tests
