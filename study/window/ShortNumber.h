// Numbers as windows of studies show them.
#pragma once

#include <string>

namespace lithmark {

// As short as so many digits allow, in the decimal sign in force.
std::string ShortNumber(double value, int digits = 6);

// "5.00 cm"; the value alone where there is no unit.
std::string WithUnit(const std::string& value, const std::string& unit);
// A number of per cent with so many digits.
std::string PerCentText(double share, int digits = 3);

}  // namespace lithmark
