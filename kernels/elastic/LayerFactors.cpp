#include "kernels/elastic/LayerFactors.h"

namespace lithmark {

namespace {

// The logarithm that a side adds between the surface (R0: distance to the far corner) and a depth (R: the same from
// there).
double SideLogarithm(Single R0, Single R, Single side) {
    return Ln(Quotient(Quotient((R0 + side) * (R - side), R + side), R0 - side));
}

}  // namespace

Single RectCornerHalfSpace(Single a, Single b, Single nu) {
    const Single R = std::sqrt(Square(a) + Square(b));
    const Single t = a * Ln(Quotient(R + b, R - b)) + b * Ln(Quotient(R + a, R - a));
    return (1 - Square(nu)) * t / (PI + PI);
}

Single RectCornerLayer(Single a, Single b, Single h, Single nu) {
    const Single R3 = std::sqrt(Square(a) + Square(b) + Square(h));
    const Single R0 = std::sqrt(Square(a) + Square(b));
    const Single u = Quotient(Quotient((R0 + a) * (R3 - a), R3 + a), R0 - a);
    const Single t1 = b * Ln(u);
    const Single v = Quotient(Quotient((R3 - b) * (R0 + b), R3 + b), R0 - b);
    const Single t2 = a * Ln(v) + t1;
    const Single t3 = h * std::atan(Quotient(Quotient(a * b, h), R3));
    return ((1 - Square(nu)) * t2 + ((1 - nu) - 2 * Square(nu)) * t3) / (PI + PI);
}

Single MeanCornerFactor(Single a, Single b, Single z1, Single z2) {
    constexpr Single shortest = 0.001;
    if (std::abs(a) < shortest || std::abs(b) < shortest) return 0;
    const Single R1 = std::sqrt(Square(a) + Square(b) + Square(z1));
    const Single R2 = std::sqrt(Square(a) + Square(b) + Square(z2));
    const Single R0 = std::sqrt(Square(a) + Square(b));
    Single T = b * SideLogarithm(R0, R2, a);
    T = T + a * SideLogarithm(R0, R2, b);
    T = T + z2 * std::atan(Quotient(Quotient(a * b, z2), R2));
    T = T - b * SideLogarithm(R0, R1, a);
    T = T - a * SideLogarithm(R0, R1, b);
    if (z1 > 0) T = T - z1 * std::atan(Quotient(Quotient(a * b, z1), R1));
    return Quotient(T, (z2 - z1) * (PI + PI));
}

Single MeanCircleAxisFactor(Single a, Single z1, Single z2) {
    const Single t1 = Quotient(2 * Square(a) + Square(z1), std::sqrt(Square(a) + Square(z1)));
    const Single t2 = Quotient(2 * Square(a) + Square(z2), std::sqrt(Square(a) + Square(z2)));
    const Single d = z2 - z1;
    return Quotient((d - t2) + t1, d);
}

}  // namespace lithmark
