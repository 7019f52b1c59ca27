// Rows of the parameter block that the reports of several kernels share: the load and the point. Values are converted
// to the units in force.
#pragma once

#include <array>

#include "base/Integer.h"
#include "base/Single.h"
#include "base/TextId.h"

namespace lithmark {

// How often a length is multiplied by the unit factor. Deliberate: some reports do it twice.
enum class LengthFactor { Once, Twice };

// A length [m] in the unit in force, or multiplied by its factor once more.
double ReportLength(Single length, LengthFactor factor = LengthFactor::Once);

// The title row of a report by its load: point load, rectangle, circle. No row for any other load type.
using LoadTitles = std::array<TextId, 3>;
void AddLoadTitle(Integer loadType, const LoadTitles& titles);

// Point load: Q. Rectangle: p, a, b; `aFactor` is for its a alone. Circle: p, a. No row for any other load type.
void AddLoadRows(Integer loadType, Single Q, Single P, Single A, Single B, LengthFactor aFactor = LengthFactor::Once);

// The coordinates x, y, z of the point, each with the name of its axis.
void AddCoordinateRows(Single x, Single y, Single z, LengthFactor factor = LengthFactor::Once);

}  // namespace lithmark
