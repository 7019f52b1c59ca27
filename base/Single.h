// Single: a 32-bit stored quantity, and the checked elementary functions that formulas use.
//
// Stored quantities are 32-bit floats, expressions run in 64 bits. A Single converts to double in an expression and is
// rounded to nearest when it is assigned; assigning a value that is not finite is a failure (Overflow for an infinity,
// InvalidArgument for a value that is not a number). So a formula reads as in the book and rounds where a quantity is
// named. With LITHMARK_WIDE_SINGLE the stored width is 64 bits, which tests use to tell rounding noise from mistakes.
#pragma once

#include <cmath>

#include "base/Failure.h"

namespace lithmark {

namespace detail {
[[noreturn]] void FailNotFinite(double value);

#ifdef LITHMARK_WIDE_SINGLE
using SingleStorage = double;
#else
using SingleStorage = float;
#endif
}  // namespace detail

class Single {
  public:
    using Storage = detail::SingleStorage;

    constexpr Single() noexcept = default;
    // Deliberate: implicit, since assignment is where a quantity is rounded.
    constexpr Single(double value) : value_(static_cast<Storage>(value)) {
        if (!(value_ - value_ == 0)) detail::FailNotFinite(value);
    }

    constexpr operator double() const noexcept { return value_; }
    constexpr Storage Stored() const noexcept { return value_; }

    // Each of these rounds once: the operation runs in 64 bits.
    constexpr Single& operator+=(double other) { return *this = Single(static_cast<double>(value_) + other); }
    constexpr Single& operator-=(double other) { return *this = Single(static_cast<double>(value_) - other); }
    constexpr Single& operator*=(double other) { return *this = Single(static_cast<double>(value_) * other); }

  private:
    Storage value_ = 0;
};

// The circle's number of the whole program: 4 arctan 1 rounded to 32 bits, 3.1415927410125732.
inline constexpr Single PI{3.14159265358979323846};

// a/b in 64 bits; DivisionByZero when b is 0, also where what follows would hide the infinity.
inline double Quotient(double a, double b) {
    if (b == 0) Fail(FailureKind::DivisionByZero);
    return a / b;
}

// Natural logarithm; InvalidArgument for x <= 0.
inline double Ln(double x) {
    if (!(x > 0)) Fail(FailureKind::InvalidArgument);
    return std::log(x);
}

// Square root; InvalidArgument for x < 0.
inline double Sqrt(double x) {
    if (!(x >= 0)) Fail(FailureKind::InvalidArgument);
    return std::sqrt(x);
}

// x^e through the general power function; InvalidArgument for a negative x with a fractional exponent, DivisionByZero
// for 0 to a negative exponent, Overflow when the result does not fit 64 bits.
double Power(double x, double e);

// Whole powers as products in 64 bits.
constexpr double Square(double x) noexcept {
    return x * x;
}
constexpr double Cube(double x) noexcept {
    return x * x * x;
}

// Exponential function; Overflow when the result does not fit 64 bits.
double Exp(double x);

// The nearest whole number, halves to the even one, as a double.
inline double RoundHalfEven(double x) noexcept {
    return std::nearbyint(x);
}

}  // namespace lithmark
