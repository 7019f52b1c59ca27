#include "report/Measured.h"

#include <algorithm>
#include <cmath>

#include "core/Units.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kDigits = 4;
constexpr double kRoundsUp = 1.00005;  // a value that rounds to the next power of ten has its digits

// Labels stand in brackets.
std::string Bare(const std::string& label) {
    const bool bracketed = label.size() >= 2 && label.front() == '[' && label.back() == ']';
    return bracketed ? label.substr(1, label.size() - 2) : label;
}

// A value and its unit read from left to right, but for a unit that is a word of the language ("7 weeks"): then the
// first strong letter decides.
std::string Isolated(const std::string& text) {
    return LanguageTexts().RightToLeft() ? "\u2068" + text + "\u2069" : text;
}

std::string Digits(double value) {
    if (value == std::floor(value) && std::abs(value) < 1e6) return FormatValue(value, "0");
    const int magnitude = static_cast<int>(std::floor(std::log10(std::abs(value) * kRoundsUp)));
    if (magnitude < -4 || magnitude > 6) return FormatValue(value, "0.00E+00");
    const int decimals = std::max(0, kDigits - 1 - magnitude);
    return FormatValue(value, decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0'));
}

}  // namespace

std::string MeasuredNumber(double value) {
    return Isolated(Digits(value));
}

std::string MeasuredPercent(double ratio) {
    return MeasuredIn(ratio * 100, "%");
}

std::string MeasuredIn(double value, const std::string& unit) {
    return Isolated(Digits(value) + " " + Bare(unit));
}

std::string MeasuredLength(double metres) {
    return MeasuredIn(metres * Session.Len1Factor, Session.Len1Label);
}

std::string MeasuredSettlement(double centimetres) {
    return MeasuredIn(centimetres * Session.Len2Factor, Session.Len2Label);
}

std::string MeasuredForce(double kilonewtons) {
    return MeasuredIn(kilonewtons * Session.Force1Factor, Session.Force1Label);
}

std::string MeasuredMoment(double kilonewtonMetres) {
    return MeasuredIn(kilonewtonMetres * FactorOf(Unit::Moment), LabelOf(Unit::Moment));
}

std::string MeasuredPressure(double value) {
    return MeasuredIn(value * FactorOf(Unit::Pressure), LabelOf(Unit::Pressure));
}

}  // namespace lithmark
