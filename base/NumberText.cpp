#include "base/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <system_error>

#include "base/Utf8.h"

namespace lithmark {

namespace {

// Digits d1 d2 d3 ... and exponent of the value d1.d2d3... x 10^exponent.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

template <typename T>
Decimal ShortestDecimal(T value) {
    std::array<char, 40> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::scientific).ptr;
    std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.begin()));
    Decimal result;
    result.negative = text.front() == '-';
    if (result.negative) text.remove_prefix(1);
    const auto e = text.find('e');
    for (const char c : text.substr(0, e))
        if (c != '.') result.digits += c;
    result.exponent = std::atoi(std::string(text.substr(e + 1)).c_str());
    return result;
}

std::string ExponentText(int exponent) {
    const std::string digits = std::to_string(std::abs(exponent));
    return std::string(exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

template <typename T>
std::string WrittenNumber(T value, int firstExponentForm) {
    if (value == 0) return "0";
    const Decimal d = ShortestDecimal(value);
    std::string text = d.negative ? "-" : "";
    if (d.exponent < -4 || d.exponent >= firstExponentForm) {
        text += d.digits.substr(0, 1);
        if (d.digits.size() > 1) text += "." + d.digits.substr(1);
        return text + ExponentText(d.exponent);
    }
    if (d.exponent < 0) return text + "." + std::string(static_cast<std::size_t>(-d.exponent - 1), '0') + d.digits;
    const auto whole = static_cast<std::size_t>(d.exponent) + 1;
    if (d.digits.size() <= whole) return text + d.digits + std::string(whole - d.digits.size(), '0');
    return text + d.digits.substr(0, whole) + "." + d.digits.substr(whole);
}

// The digits of |value| with `places` digits behind the point and no point, rounded half away from zero.
std::string RoundedDigits(double value, int places) {
    // 1080 places hold every double exactly, so a tie is seen for what it is.
    constexpr int kExact = 1080;
    std::string buffer(1500, '\0');
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value), std::chars_format::fixed, kExact)
            .ptr;
    buffer.resize(static_cast<std::size_t>(end - buffer.data()));
    const auto point = buffer.find('.');
    std::string digits = buffer.substr(0, point) + buffer.substr(point + 1);
    const auto kept = point + static_cast<std::size_t>(std::min(places, kExact));
    const bool up = kept < digits.size() && digits[kept] >= '5';
    digits.resize(kept);
    digits.append(static_cast<std::size_t>(std::max(0, places - kExact)), '0');
    if (!up) return digits;
    for (auto i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return digits;
        }
        digits[i] = '0';
    }
    return "1" + digits;
}

// What stands between the first and the last place of a number pattern.
struct Pattern {
    std::string prefix, suffix;
    std::size_t wholeZeros = 0;  // least digits ahead of the point
    std::string places;          // one "0" or "#" for each digit behind the point
    bool point = false, thousands = false;
    int percents = 0;
    bool exponent = false, exponentPlus = false;
    std::size_t exponentZeros = 0;
    bool hasDigits = false;
};

Pattern ReadPattern(std::string_view text) {
    Pattern p;
    std::size_t i = 0;
    while (i < text.size() && text[i] != '0' && text[i] != '#' && text[i] != '.') {
        if (text[i] == '%') ++p.percents;
        p.prefix += text[i++];
    }
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.' && !p.point) {
            p.point = true;
        } else if (c == ',' && !p.point) {
            p.thousands = true;
        } else if (c == '0' || c == '#') {
            p.hasDigits = true;
            if (p.point)
                p.places += c;
            else if (c == '0' || p.wholeZeros > 0)
                ++p.wholeZeros;
        } else if ((c == 'E' || c == 'e') && i + 1 < text.size() && (text[i + 1] == '+' || text[i + 1] == '-')) {
            p.exponent = true;
            p.exponentPlus = text[i + 1] == '+';
            for (i += 2; i < text.size() && (text[i] == '0' || text[i] == '#'); ++i) ++p.exponentZeros;
            break;
        } else {
            break;
        }
    }
    for (; i < text.size(); ++i) {
        if (text[i] == '%') ++p.percents;
        p.suffix += text[i];
    }
    return p;
}

std::string GroupThousands(const std::string& digits) {
    std::string result;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) result += ',';
        result += digits[i];
    }
    return result;
}

// The power of ten that leaves one digit (or as many as the pattern asks) ahead of the point.
int PatternExponent(double value, const Pattern& p) {
    if (value == 0) return 0;
    const int lead = p.wholeZeros > 0 ? static_cast<int>(p.wholeZeros) - 1 : 0;
    return ShortestDecimal(value).exponent - lead;
}

// True when a number too great or too small for its type is too small. `text` has passed as a number.
bool IsTiny(std::string_view text) {
    const auto e = text.find('e');
    const std::string_view mantissa = text.substr(0, e);
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) return true;
    const double places = first < point ? static_cast<double>(point - first) : -static_cast<double>(first - point);
    double exponent = 0;  // digit by digit: it may be longer than any whole number
    if (e != std::string_view::npos)
        for (const char c : text.substr(e + 1))
            if (c >= '0' && c <= '9') exponent = exponent * 10 + (c - '0');
    if (e != std::string_view::npos && text.substr(e + 1).starts_with('-')) exponent = -exponent;
    return places + exponent < 0;
}

// Reads a number into a type of its own width, so that it is rounded once. invalid_argument when the text holds none,
// result_out_of_range when it is too great; one that is too small is zero.
template <typename T>
std::errc Parse(std::string_view text, char decimalSign, T& value) {
    std::string number = Trim(text);
    if (decimalSign != '.' && number.find('.') != std::string::npos) return std::errc::invalid_argument;
    for (char& c : number) {
        if (c == decimalSign)
            c = '.';
        else if (c == 'd' || c == 'D' || c == 'E')
            c = 'e';
    }
    std::string_view rest = number;
    if (rest.starts_with('+')) {
        rest.remove_prefix(1);
        if (rest.starts_with('-')) return std::errc::invalid_argument;
    }
    if (rest.find_first_not_of("+-.0123456789e") != std::string_view::npos) return std::errc::invalid_argument;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    if (end != rest.data() + rest.size() || rest.empty()) return std::errc::invalid_argument;
    if (error != std::errc::result_out_of_range) return error;
    value = 0;
    return IsTiny(rest) ? std::errc{} : error;
}

template <typename T>
T Checked(std::string_view text) {
    T value = 0;
    const std::errc error = Parse(text, '.', value);
    if (error == std::errc::result_out_of_range) Fail(FailureKind::Overflow);
    if (error != std::errc{}) Fail(FailureKind::BadNumber);
    return value;
}

}  // namespace

std::string NumberToText(Single value) {
    return WrittenNumber(value.Stored(), 7);
}

std::string NumberToText(double value) {
    return WrittenNumber(value, 15);
}

std::string NumberToText(int value) {
    return std::to_string(value);
}

std::string NumberToText(long value) {
    return std::to_string(value);
}

std::string JsonNumber(Single value) {
    std::array<char, 40> buffer;
    return std::string(buffer.data(), std::to_chars(buffer.begin(), buffer.end(), value.Stored()).ptr);
}

std::string JsonNumber(double value) {
    std::array<char, 40> buffer;
    return std::string(buffer.data(), std::to_chars(buffer.begin(), buffer.end(), value).ptr);
}

std::string FormatNumber(double value, std::string_view pattern, char decimalSign) {
    const Pattern p = ReadPattern(pattern);
    if (!p.hasDigits) return std::string(pattern);
    for (int i = 0; i < p.percents; ++i) value *= 100;
    if (!std::isfinite(value)) detail::FailNotFinite(value);

    int exponent = 0;
    const int places = static_cast<int>(p.places.size());
    std::string digits;
    if (p.exponent) {
        // The digits are taken from the exact decimal expansion, shifted by the exponent.
        exponent = PatternExponent(value, p);
        const auto shifted = [&] {
            const int shiftedPlaces = places - exponent;
            if (shiftedPlaces >= 0) return RoundedDigits(value, shiftedPlaces);
            std::string whole = RoundedDigits(value / std::pow(10.0, -shiftedPlaces), 0);
            return whole;
        };
        digits = shifted();
        digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
        const auto most = std::max<std::size_t>(p.wholeZeros, 1) + p.places.size();
        if (digits.size() > most) {  // 9.99 rounded up to 10.0
            digits.pop_back();
            ++exponent;
        }
        if (value == 0) digits.clear();
        if (digits.size() < most) digits.insert(0, most - digits.size(), '0');
    } else {
        digits = RoundedDigits(value, places);
    }

    const auto split = digits.size() - static_cast<std::size_t>(places);
    std::string whole = digits.substr(0, split), fraction = digits.substr(split);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() < p.wholeZeros) whole.insert(0, p.wholeZeros - whole.size(), '0');
    if (p.thousands) whole = GroupThousands(whole);
    while (!fraction.empty() && fraction.back() == '0' && p.places[fraction.size() - 1] == '#') fraction.pop_back();

    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    std::string text = value < 0 && !zero ? "-" : "";
    text += p.prefix + whole;
    if (p.point) text += decimalSign + fraction;
    if (p.exponent) {
        text += exponent < 0 ? "E-" : p.exponentPlus ? "E+" : "E";
        std::string e = std::to_string(std::abs(exponent));
        if (e.size() < p.exponentZeros) e.insert(0, p.exponentZeros - e.size(), '0');
        text += e;
    }
    return text + p.suffix;
}

std::optional<double> ParseNumber(std::string_view text, char decimalSign) {
    double value = 0;
    return Parse(text, decimalSign, value) == std::errc{} ? std::optional<double>(value) : std::nullopt;
}

double TextToNumber(std::string_view text) {
    return Checked<double>(text);
}

Single TextToSingle(std::string_view text) {
    return Single(Checked<Single::Storage>(text));
}

}  // namespace lithmark
