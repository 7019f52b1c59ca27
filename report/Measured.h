// Measured values as words of a sentence: four digits and the unit in force, "0.0253 cm".
//
// In Arabic a value is kept together with its unit by isolates, which read in the direction of the unit. Arguments are
// in base units (m, kN, kN/m2, cm for settlements).
#pragma once

#include <string>

namespace lithmark {

std::string MeasuredNumber(double value);
// "12.3 %" of the ratio 0.123.
std::string MeasuredPercent(double ratio);
std::string MeasuredLength(double metres);
std::string MeasuredSettlement(double centimetres);
std::string MeasuredForce(double kilonewtons);
std::string MeasuredMoment(double kilonewtonMetres);
std::string MeasuredPressure(double value);
// A number in front of a unit that is ready: a time unit, say.
std::string MeasuredIn(double value, const std::string& unit);

}  // namespace lithmark
