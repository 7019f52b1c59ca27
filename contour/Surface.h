// Surface: what the contour engine draws on. Colours are numbers of the sixteen-colour palette.
//
// Drawing runs either in pixels or in world coordinates, whichever scale was set last. World coordinates grow to the
// right and upwards when the scale's top lies above its bottom.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace lithmark {

// The pixels of a surface: those from Left to Left + Width - 1 and from Top to Top + Height - 1.
struct PixelExtent {
    int Left = 0, Top = 0, Width = 0, Height = 0;
};

class Surface {
  public:
    virtual ~Surface() = default;

    virtual PixelExtent Pixels() const = 0;
    virtual void Clear() = 0;
    virtual void SetPixelScale() = 0;
    virtual void SetWorldScale(double left, double top, double right, double bottom) = 0;

    // One pixel; the scale is pixels.
    virtual void Pixel(int x, int y, int color) = 0;
    virtual void Line(double x1, double y1, double x2, double y2, int color) = 0;
    // A text whose upper left corner stands at (x, y).
    virtual void Print(double x, double y, const std::string& text) = 0;
    virtual void FilledBox(double x1, double y1, double x2, double y2, int color) = 0;
};

// The classic sixteen colours as 0xRRGGBB: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 yellow, 7 white, 8
// grey, 9 light blue, 10 light green, 11 light cyan, 12 light red, 13 light magenta, 14 light yellow, 15 bright white.
inline constexpr std::array<std::uint32_t, 16> kPalette = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                                           0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                                           0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

}  // namespace lithmark
