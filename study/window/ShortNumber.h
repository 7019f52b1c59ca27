// Numbers as windows of studies show them.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

// As short as so many digits allow, in the decimal sign in force.
std::string ShortNumber(double value, int digits = 6);

// The same as pictures show it, in the decimal sign of the language.
std::string PictureNumber(double value, int digits = 6);

// One of several numbers with the decimals that tell it apart from the others: it is off by a twentieth of the way to
// the nearest of them at most.
std::string NumberApart(double value, const std::vector<double>& all, char decimalSign);

// "5.00 cm"; the value alone where there is no unit.
std::string WithUnit(const std::string& value, const std::string& unit);
// Words that keep together in a line from right to left, such as a number with its unit, in the direction of their
// first letter.
std::string Together(const std::string& words);
// A number of per cent with so many digits.
std::string PerCentText(double share, int digits = 3);

}  // namespace lithmark
