// The texts of the ten classes; a label names the middle of its class.
#include <cmath>

#include "contour/AxisTicks.h"
#include "contour/BasContour.h"
#include "core/CurveRequest.h"
#include "core/Units.h"

namespace lithmark {

namespace {

// A format whose last digit is a tenth of the step at most, so that neighbouring classes differ and their distances
// show as even.
std::string FormatFor(double step) {
    int decimals = 0;
    while (decimals < kMostDecimals && std::pow(10.0, -decimals) > 0.1 * step) ++decimals;
    return decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0');
}

}  // namespace

double BasContour::CaptionFactor() const {
    constexpr double kCentimetres = 100;
    return PressureContoursRequested() ? 1 : kCentimetres;
}

void BasContour::LabelClasses(Labels labels) {
    const bool fine = labels == Labels::Fine;
    const double factor = fine ? CaptionFactor() : 1;
    const std::string format = fine && ZStep > 0 ? FormatFor(ZStep * factor) : ZFormat;
    Single value = ZMin + 0.5 * ZStep;
    for (int i = 1; i <= kClasses; ++i) {
        ClassLabel(i) = FormatValue(value * factor, format);
        value += ZStep;
    }
}

}  // namespace lithmark
