// Numbers to text and back, by rules of our own: no locale takes part.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Single.h"

namespace lithmark {

// The written number: the shortest decimal text that gives the stored value back, "." as decimal point, no leading 0
// ahead of the point (".5"), exponent form with a capital E and a signed exponent of at least two digits ("1.5E-06")
// below 1E-04 and from 1E+07 (Single) or 1E+15 (double) on.
std::string NumberToText(Single value);
std::string NumberToText(double value);
std::string NumberToText(int value);
std::string NumberToText(long value);

// As many digits as give the 32-bit value back, in the form that JSON takes ("0.16", "1e+20").
std::string JsonNumber(Single value);
std::string JsonNumber(double value);

// A number by a pattern of "0" and "#" (digits), "." (decimal sign), "," (thousands), "%" and "E+00"; what stands in
// front of and behind the digits is copied. Rounded half away from zero by the exact value; a negative value that
// rounds to zero has no sign. A pattern without a digit place is copied as it stands. Overflow for an infinity (also
// one that the per cent makes), InvalidArgument for a value that is not a number.
std::string FormatNumber(double value, std::string_view pattern, char decimalSign = '.');

// The number that a text holds: blanks at the ends, a sign, digits with `decimalSign`, an exponent after E, e, D or d.
// Nothing when the text is no number or does not fit 64 bits.
std::optional<double> ParseNumber(std::string_view text, char decimalSign = '.');

// The number of a text in a file, "." as decimal point. BadNumber when it holds none, Overflow when it does not fit.
// The text of a Single is rounded once, to its own width.
double TextToNumber(std::string_view text);
Single TextToSingle(std::string_view text);

}  // namespace lithmark
