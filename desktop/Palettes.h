// The palettes of light and dark windows.
#pragma once

#include <QPalette>

#include "render/drawings/Inks.h"

namespace lithmark {

// Every role in every state: what is left out would come from the system's palette, which may be of the other theme.
QPalette PaletteOf(Theme theme);

}  // namespace lithmark
