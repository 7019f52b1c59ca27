// Ticks of an axis: round numbers in steps of 1, 2 and 5 times a power of ten.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

// No number of a plot is shown with more decimals.
inline constexpr int kMostDecimals = 12;

struct AxisTicks {
    std::vector<double> Places;
    double Step = 0;
    int Decimals = 0;  // as many as tell the places apart
};

// The ticks between two values, both included, with the smallest step that gives at most `most` of them (2 at least;
// one tick or none where even the least step is wider than the axis). `whole` keeps the step at 1 and above, as counted
// times want it. Nothing for an axis without width or with an end that is not finite.
AxisTicks RoundTicks(double lower, double upper, int most, bool whole = false);

// The smallest 1, 2 or 5 times a power of ten that is `least` or greater. `least` is above 0.
double RoundStep(double least);

// The decimals that a number needs whose last digit is that of a step: 0 for 5, 1 for 0.2, 2 for 0.05.
int DecimalsOf(double step);

// A number with so many decimals, its digits ungrouped.
std::string TickText(double value, int decimals, char decimalSign);

// The decimal sign of the language in force, which pictures show: "," in German, "." in English and Arabic.
char LanguageDecimalSign();

}  // namespace lithmark
