#include "contour/FieldColours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lithmark {

namespace {

constexpr std::array<std::uint32_t, 10> kCividis = {0x00204D, 0x00336F, 0x39486B, 0x575D6D, 0x707173,
                                                    0x8A8779, 0xA69D75, 0xC4B56C, 0xE4CF5B, 0xFFEA46};

}  // namespace

std::uint32_t FieldColour(double share) {
    const double place = std::clamp(share, 0.0, 1.0) * (kCividis.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(place), kCividis.size() - 2);
    const double part = place - static_cast<double>(lower);
    std::uint32_t colour = 0;
    for (const int shift : {16, 8, 0}) {
        const double from = kCividis[lower] >> shift & 0xFF, to = kCividis[lower + 1] >> shift & 0xFF;
        colour |= static_cast<std::uint32_t>(std::lround(from + part * (to - from))) << shift;
    }
    return colour;
}

}  // namespace lithmark
