// Colours of a field of values: from dark blue over grey to yellow, evenly in lightness, so that equal steps of the
// value are seen as equal steps, in print without colours too and by readers who do not tell red from green.
//
// cividis of Nunez, Anderton and Renslow (2018), "Optimizing colormaps with consideration for color vision deficiency",
// by ten of its colours.
#pragma once

#include <cstdint>

namespace lithmark {

// 0xRRGGBB of a share from 0 (least) to 1 (greatest); beyond them the colour of the end.
std::uint32_t FieldColour(double share);

}  // namespace lithmark
