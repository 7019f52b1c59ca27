// The field of a raft's values as JSON.
#pragma once

#include <optional>
#include <string>

#include "contour/FieldPlot.h"

namespace lithmark {

// `size` above 0 adds the classes of so many rows of pixels.
std::string FieldJson(const BasContour& plot, const FieldPlot& field, const std::optional<FieldLine>& section,
                      int size);

}  // namespace lithmark
