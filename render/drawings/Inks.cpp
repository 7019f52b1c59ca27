#include "render/drawings/Inks.h"

#include <QPalette>
#include <array>

namespace lithmark {

namespace {

struct InkRow {
    QRgb Light, Dark;
};

// In the order of Ink.
constexpr std::array<InkRow, kInks> kTable = {{
    {0xF3F4F6, 0x22272D}, {0xFFFFFF, 0x1A1E23}, {0xF7EEDC, 0x3B352B}, {0xF0E4CB, 0x332E26},  // window, base, soil
    {0xEADFD6, 0x3F3632}, {0xDEDAD2, 0x47443F},                                              // clay, rock
    {0x1B2530, 0xE6EAEE}, {0x4E5963, 0xAEB8C1}, {0x646E78, 0x939EA9},                        // text, quiet, hint
    {0x14599A, 0x7ABBF3}, {0xFFFFFF, 0x10202E}, {0x14599A, 0x7ABBF3},                        // selection, on it, link
    {0x0A57A0, 0x7ABBF3}, {0x951A54, 0xF79AC4}, {0x0B5F6A, 0x74CFDA},                        // load, point, water
    {0xA8231B, 0xFF9A91}, {0x6E4600, 0xF0C05A}, {0x17603A, 0x74D393},                        // error, warning, good
    {0x0068A6, 0x5AB0E8}, {0xA84800, 0xFF9A4D}, {0x006E52, 0x4FCBA0}, {0x84408F, 0xD29BE0},  // curves
    {0x7A8591, 0x78838E}, {0xDDE1E6, 0x343B43},                                              // edge, grid
}};

}  // namespace

QColor ColourOf(Ink ink, Theme theme) {
    const InkRow& row = kTable.at(static_cast<std::size_t>(ink));
    return QColor::fromRgb(theme == Theme::Dark ? row.Dark : row.Light);
}

Theme ThemeOf(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128 ? Theme::Dark : Theme::Light;
}

}  // namespace lithmark
