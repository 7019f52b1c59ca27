#include "base/Single.h"

namespace lithmark {

namespace detail {

void FailNotFinite(double value) {
    Fail(std::isnan(value) ? FailureKind::InvalidArgument : FailureKind::Overflow);
}

}  // namespace detail

double Power(double x, double e) {
    if (x == 0 && e < 0) Fail(FailureKind::DivisionByZero);
    const double result = std::pow(x, e);
    if (!std::isfinite(result)) detail::FailNotFinite(result);
    return result;
}

double Exp(double x) {
    const double result = std::exp(x);
    if (!std::isfinite(result)) detail::FailNotFinite(result);
    return result;
}

}  // namespace lithmark
