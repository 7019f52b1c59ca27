#include "render/drawings/Proportions.h"

#include <algorithm>
#include <cmath>

namespace lithmark {

namespace {

constexpr double kMostToOne = 8;

}  // namespace

double Usable(double value) {
    return std::isfinite(value) ? value : 0;
}

std::vector<DrawnLength> Proportions(std::initializer_list<double> values) {
    double shortest = 0;
    for (const double value : values)
        if (const double size = std::abs(Usable(value)); size > 0 && (shortest == 0 || size < shortest))
            shortest = size;
    double longest = 0;
    for (const double value : values) longest = std::max(longest, std::abs(Usable(value)));
    longest = std::min(longest, kMostToOne * shortest);
    std::vector<DrawnLength> lengths;
    for (const double value : values) {
        const double size = std::abs(Usable(value));
        if (size == 0)
            lengths.push_back({});
        else
            lengths.push_back({std::copysign(std::min(size, longest), value), size > longest});
    }
    return lengths;
}

double Longest(const std::vector<DrawnLength>& lengths) {
    double longest = 0;
    for (const DrawnLength& length : lengths) longest = std::max(longest, std::abs(length.Length));
    return longest;
}

DrawnLength Coordinate(double value, double half, double drawnHalf, double most) {
    const double size = std::abs(Usable(value));
    if (size == 0) return {};
    const double inside = std::min(size, std::max(0.0, Usable(half)));
    const double share = inside > 0 ? drawnHalf / half : 1;
    const double drawn = inside * share + (size - inside);
    return {std::copysign(std::min(drawn, most), value), drawn > most || share != 1};
}

}  // namespace lithmark
