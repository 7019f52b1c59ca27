// The tilt of a raft from the settlements of its nodes.
#pragma once

#include <optional>
#include <vector>

namespace lithmark {

// The greatest slope, height by length, of the plane that fits the settlements best (least squares): x, y in m,
// settlements in cm. A rigid raft lies in it. Nothing where the nodes span no plane, or the lists are of several
// lengths.
std::optional<double> TiltOf(const std::vector<double>& x, const std::vector<double>& y,
                             const std::vector<double>& settlement);

}  // namespace lithmark
