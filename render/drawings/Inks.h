// The colours of windows and drawings by name, for light and dark windows.
#pragma once

#include <QColor>

class QPalette;

namespace lithmark {

enum class Ink {
    // Grounds and fills, on which the others are seen.
    Window,
    Base,
    SoilTop,
    SoilSide,
    Clay,
    Rock,
    // Words.
    Text,
    Quiet,
    Hint,  // on grounds only
    Selection,
    OnSelection,
    Link,
    // What a drawing is about.
    Load,
    Point,
    Water,
    Error,
    Warning,
    Good,
    // On grounds only.
    Curve1,
    Curve2,
    Curve3,
    Curve4,
    Edge,
    Grid
};
inline constexpr int kInks = static_cast<int>(Ink::Grid) + 1;

enum class Theme { Light, Dark };

QColor ColourOf(Ink ink, Theme theme);
// That of a window with such a palette.
Theme ThemeOf(const QPalette& palette);

}  // namespace lithmark
