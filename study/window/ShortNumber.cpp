#include "study/window/ShortNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/Utf8.h"
#include "contour/AxisTicks.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string InDigits(double value, int digits, char decimalSign) {
    std::array<char, 32> room;
    const auto end = std::to_chars(room.begin(), room.end(), value, std::chars_format::general, digits).ptr;
    return ReplaceAll(std::string(room.begin(), end), ".", std::string(1, decimalSign));
}

}  // namespace

std::string ShortNumber(double value, int digits) {
    return InDigits(value, digits, SharedServices().DecimalSign);
}

std::string PictureNumber(double value, int digits) {
    return InDigits(value, digits, LanguageDecimalSign());
}

std::string NumberApart(double value, const std::vector<double>& all, char decimalSign) {
    constexpr int kDigitsAlone = 5;
    constexpr double kOff = 0.05, kTenMillion = 1e7;
    double nearest = std::numeric_limits<double>::infinity();
    for (const double other : all)
        if (other != value) nearest = std::min(nearest, std::abs(other - value));
    if (std::isinf(nearest) || std::abs(value) >= kTenMillion) return InDigits(value, kDigitsAlone, decimalSign);
    int decimals = 0;
    const auto off = [&] {
        const double scale = std::pow(10.0, decimals);
        return std::abs(std::round(value * scale) / scale - value);
    };
    while (decimals < kMostDecimals && off() > kOff * nearest * (1 + 1e-9)) ++decimals;
    return TickText(value, decimals, decimalSign);
}

std::string WithUnit(const std::string& value, const std::string& unit) {
    return unit.empty() ? value : value + " " + unit;
}

std::string Together(const std::string& words) {
    return LanguageTexts().RightToLeft() ? "\u2068" + words + "\u2069" : words;
}

std::string PerCentText(double share, int digits) {
    return ShortNumber(share * 100, digits) + " %";
}

}  // namespace lithmark
