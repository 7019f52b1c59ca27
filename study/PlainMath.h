// Elementary functions and the normal distribution from + - * /, square root, frexp and ldexp alone.
//
// The logarithm and the exponential function of a C library differ in the last digit from library to library, and in
// one library from processor to processor. These give the same digits everywhere, so that a sample's values are the
// same on every machine.
#pragma once

namespace lithmark {

// Natural logarithm of x > 0, wrong by at most 1.5 units of the last place.
double PlainLog(double x);
// e^x, wrong by at most 1.5 units of the last place; 0 below -745, infinity above 709.
double PlainExp(double x);

// The z that a standard normal value does not exceed with probability p, 0 < p < 1, and that it exceeds with
// probability p: method AS 241, PPND16 (Wichura 1988), accurate to 1e-15 relative. The second keeps its digits for
// small p above.
double NormalQuantile(double p);
double UpperNormalQuantile(double p);

// The probability that a standard normal value is below z, and that it is above: rational approximations of the error
// function (Cody 1969), accurate to 1e-15 relative.
double NormalBelow(double z);
double NormalAbove(double z);

}  // namespace lithmark
