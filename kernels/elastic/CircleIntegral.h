// What a uniformly loaded circle does at a point, by integration instead of a mesh: the measure of what a mesh misses.
//
// A quantity that a disc of radius rho gives on its axis as f(rho), with f(0) = 0, is for a point off the axis the mean
// of f over all directions, rho being the distance from the point's foot to the rim (superposition of sectors; Newmark
// 1942). Seen from outside, the far rim counts positive and the near one negative.
#pragma once

#include <cmath>

#include "base/Single.h"

namespace lithmark {

// The mean of f(rho) over the directions for a circle of radius a [m] and a foot at the distance r from its centre. The
// points crowd where the rim is nearest, so a foot close to the rim is integrated as well as any other: 1e-5 of f(a)
// with the usual number of points.
template <typename OnAxis>
double CircleIntegral(double a, double r, const OnAxis& f, int points = 600) {
    constexpr double pi = 3.14159265358979323846;
    double sum = 0;
    for (int i = 0; i < points; ++i) {
        const double t = (i + 0.5) / points;
        const double psi = pi * Cube(t);
        // The square of the distance, without the cancellation of a^2 + r^2 - 2 a r cos(psi).
        const double square = Square(a - r) + 4 * a * r * Square(std::sin(psi / 2));
        if (square == 0) continue;
        // d(phi)/d(psi): (a^2 - a r cos(psi))/rho^2.
        const double turn = (a * (a - r) + 2 * a * r * Square(std::sin(psi / 2))) / square;
        sum += f(std::sqrt(square)) * turn * 3 * Square(t);
    }
    return sum / points;
}

// On the axis of a disc of radius rho under unit pressure: vertical stress at depth z (Boussinesq 1885).
inline double DiscStress(double rho, double z) {
    return 1 - Cube(z) / (std::sqrt(Square(rho) + Square(z)) * (Square(rho) + Square(z)));
}

// The same: mean vertical stress between the depths z1 and z2.
inline double DiscMeanStress(double rho, double z1, double z2) {
    const auto depth = [rho](double z) { return (2 * Square(rho) + Square(z)) / std::sqrt(Square(rho) + Square(z)); };
    return rho == 0 ? 0 : ((z2 - z1) - depth(z2) + depth(z1)) / (z2 - z1);
}

// The same: displacement of the surface less that at depth z, times the modulus of elasticity [m].
inline double DiscSettlement(double rho, double z, double Nue) {
    const double c = 2 * (1 - Nue), R = std::sqrt(Square(rho) + Square(z));
    return (1 + Nue) * (c * rho - (c * (R - z) - z * (z / R - 1)));
}

}  // namespace lithmark
