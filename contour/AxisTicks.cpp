#include "contour/AxisTicks.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr double kSlack = 1e-9;  // of a step: a place that rounding puts just outside the axis belongs to it

// Powers of ten of either sign, the negative ones as exact quotients.
double Scaled(double mantissa, int exponent) {
    return exponent >= 0 ? mantissa * std::pow(10.0, exponent) : mantissa / std::pow(10.0, -exponent);
}

struct Step {
    int Mantissa = 1, Exponent = 0;
    double Value() const { return Scaled(Mantissa, Exponent); }
};

Step StepFrom(double least) {
    Step step{1, static_cast<int>(std::floor(std::log10(least)))};
    while (step.Value() < least * (1 - kSlack)) {
        if (step.Mantissa == 5) {
            step = {1, step.Exponent + 1};
        } else {
            step.Mantissa = step.Mantissa == 1 ? 2 : 5;
        }
    }
    return step;
}

}  // namespace

double RoundStep(double least) {
    return StepFrom(least).Value();
}

int DecimalsOf(double step) {
    for (int decimals = 0; decimals < kMostDecimals; ++decimals) {
        const double scaled = step * std::pow(10.0, decimals);
        if (std::abs(scaled - std::round(scaled)) < kSlack * std::max(1.0, scaled)) return decimals;
    }
    return kMostDecimals;
}

AxisTicks RoundTicks(double lower, double upper, int most, bool whole) {
    AxisTicks ticks;
    if (!(upper > lower) || !std::isfinite(lower) || !std::isfinite(upper)) return ticks;
    const auto count = [&](double value) {
        return std::floor(upper / value + kSlack) - std::ceil(lower / value - kSlack) + 1;
    };
    Step step = StepFrom((upper - lower) / std::max(most, 2));
    if (whole && step.Exponent < 0) step = {1, 0};
    while (count(step.Value()) > std::max(most, 2)) step = StepFrom(step.Value() * 1.5);
    const double first = std::ceil(lower / step.Value() - kSlack);
    for (int i = 0; i < count(step.Value()); ++i)
        ticks.Places.push_back(Scaled((first + i) * step.Mantissa, step.Exponent));
    ticks.Step = step.Value();
    ticks.Decimals = std::clamp(-step.Exponent, 0, kMostDecimals);
    return ticks;
}

std::string TickText(double value, int decimals, char decimalSign) {
    return FormatNumber(value, decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0'),
                        decimalSign);
}

char LanguageDecimalSign() {
    return LanguageTexts().Current() == Language::German ? ',' : '.';
}

}  // namespace lithmark
