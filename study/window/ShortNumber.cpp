#include "study/window/ShortNumber.h"

#include <array>
#include <charconv>

#include "base/Utf8.h"
#include "services/SharedServices.h"

namespace lithmark {

std::string ShortNumber(double value, int digits) {
    std::array<char, 32> room;
    const auto end = std::to_chars(room.begin(), room.end(), value, std::chars_format::general, digits).ptr;
    return ReplaceAll(std::string(room.begin(), end), ".", std::string(1, SharedServices().DecimalSign));
}

std::string WithUnit(const std::string& value, const std::string& unit) {
    return unit.empty() ? value : value + " " + unit;
}

std::string PerCentText(double share, int digits) {
    return ShortNumber(share * 100, digits) + " %";
}

}  // namespace lithmark
