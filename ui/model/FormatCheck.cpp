#include "ui/model/FormatCheck.h"

#include <cmath>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// A digit, nothing, with digits behind the sign, thousands, below zero, small.
constexpr double kTried[] = {5, 0, 12.5, 1234.5, -5, 0.0375};

// Half a unit of the last digit of a printed number; "1.23E+03" stands for tens.
double HalfOfLastDigit(const std::string& printed, char decimalSign) {
    const std::size_t exponent = printed.find('E');
    const std::string mantissa = printed.substr(0, exponent);
    const std::size_t sign = mantissa.find(decimalSign);
    const int digits = sign == std::string::npos ? 0 : static_cast<int>(mantissa.size() - sign - 1);
    double power = 0;
    if (exponent != std::string::npos) power = ParseNumber(printed.substr(exponent + 1)).value_or(0);
    return 0.5 * std::pow(10.0, power - digits);
}

std::string Printed(double value, const std::string& format) {
    try {
        return FormatValue(value, format);
    } catch (const Failure&) {
        return {};
    }
}

bool PrintsIt(double value, const std::string& printed) {
    const char decimalSign = SharedServices().DecimalSign;
    const auto read = ParseNumber(printed, decimalSign);
    constexpr double kRounding = 1e-6;  // of the digits themselves
    return read && std::abs(*read - value) <= HalfOfLastDigit(printed, decimalSign) * (1 + kRounding);
}

// "2.00 m"
std::string Shown(double base, Unit unit, const std::string& format) {
    std::string label = LabelOf(unit);
    if (label.size() >= 2) label = label.substr(1, label.size() - 2);
    return "\u2066" + FormatValue(base * FactorOf(unit), format) + " " + label + "\u2069";
}

class OtherUnits {
  public:
    explicit OtherUnits(const UnitSettings& units) : before_(UnitsInForce()) { SetUnits(units); }
    ~OtherUnits() { SetUnits(before_); }
    OtherUnits(const OtherUnits&) = delete;
    OtherUnits& operator=(const OtherUnits&) = delete;

  private:
    const UnitSettings before_;
};

}  // namespace

std::optional<std::string> FormatFault(const std::string& format) {
    if (format.empty()) return std::nullopt;
    for (const double value : kTried) {
        const std::string printed = Printed(value, format);
        if (PrintsIt(value, printed)) continue;
        return Text(913480_text, {{"|1", Excerpt(format)}, {"|2", FormatValue(value, "")}, {"|3", Excerpt(printed)}});
    }
    return std::nullopt;
}

std::string UnitsInUse(const UnitSettings& units) {
    const OtherUnits other(units);
    return Text(913476_text, {{"|1", Shown(2, Unit::Length, Session.FmtLength)},
                              {"|2", Shown(1.5, Unit::Settlement, Session.FmtSettlement)},
                              {"|3", Shown(1000, Unit::Force, Session.FmtForce)},
                              {"|4", Shown(150, Unit::Pressure, Session.FmtStress)},
                              {"|5", Shown(18, Unit::UnitWeight, Session.FmtUnitWeight)}});
}

}  // namespace lithmark
