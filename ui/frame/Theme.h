// Light and dark windows.
#pragma once

namespace lithmark {

enum class ThemeChoice { System, Light, Dark };

}  // namespace lithmark
