// Integer: a 16-bit signed whole number that fails instead of wrapping round.
#pragma once

#include <cstdint>
#include <type_traits>

#include "base/Single.h"

namespace lithmark {

class Integer {
  public:
    static constexpr int kMin = -32768;
    static constexpr int kMax = 32767;

    constexpr Integer() noexcept = default;
    // A whole number outside -32768..32767 is an Overflow.
    template <typename T>
    requires std::is_integral_v<T>
    constexpr Integer(T value) : value_(static_cast<std::int16_t>(value)) {
        if (value < static_cast<T>(kMin < 0 && std::is_unsigned_v<T> ? 0 : kMin) || value > static_cast<T>(kMax))
            Fail(FailureKind::Overflow);
    }
    // Rounded to nearest, halves to even; Overflow outside the range, InvalidArgument for a value that is not a number.
    static Integer Rounded(double value) {
        if (std::isnan(value)) Fail(FailureKind::InvalidArgument);
        const double whole = RoundHalfEven(value);
        if (whole < kMin || whole > kMax) Fail(FailureKind::Overflow);
        return Integer(static_cast<int>(whole));
    }

    constexpr operator int() const noexcept { return value_; }

    constexpr Integer& operator+=(int other) { return *this = Integer(value_ + other); }
    constexpr Integer& operator-=(int other) { return *this = Integer(value_ - other); }
    constexpr Integer& operator++() { return *this += 1; }

  private:
    std::int16_t value_ = 0;
};

}  // namespace lithmark
