// Stresses and displacements in an elastic half-space under a vertical point load on its surface.
//
// Assumptions: half-space linear elastic, homogeneous, isotropic, without weight; load vertical at the origin.
// Symbols: x, y, zc point, zc depth > 0 [m]; R distance from the load [m]; Q load [kN]; Nue, Es [kN/m2] of the soil.
// Signs: compression positive; u and v along x and y, w downward.
// Source: Boussinesq (1885).
//
// The functions are the formulas per unit load, in 64 bits; the shorthands t1 .. t5 are rounded to 32 bits as they are
// named. Division by zero (zc = -R, beyond the valid range) is a failure.
#pragma once

#include "base/Single.h"
#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

constexpr double FifthPower(double x) noexcept {
    return Square(Square(x)) * x;
}

// Vertical stress per unit load, 1/m2.
inline double PointSigmaZ(Single zc, Single R) {
    return 3 * Quotient(Cube(zc), FifthPower(R)) / (2 * PI);
}

// Normal stress along the axis of the coordinate x, per unit load; with y for x the one along y.
inline double PointSigmaX(Single x, Single zc, Single R, Single Nue) {
    const Single t1 = Quotient(1, (R + zc) * R);
    const Single t2 = Quotient(Square(x) * (2 * R + zc), Square(R + zc) * Cube(R));
    const Single t3 = Quotient(zc, Cube(R));
    const Single t4 = (1 - 2 * Nue) * ((t1 - t2) - t3) / 3;
    const Single t5 = Quotient(Square(x) * zc, FifthPower(R));
    return 3 * (t5 + t4) / (2 * PI);
}

// Shear stress in the x-y plane per unit load.
inline double PointTauXy(Single x, Single y, Single zc, Single R, Single Nue) {
    const Single t2 = Quotient((2 * R + zc) * x * y, Square(R + zc) * Cube(R));
    const Single t4 = (1 - 2 * Nue) * t2 / 3;
    const Single t5 = Quotient(x * y * zc, FifthPower(R));
    return 3 * (t5 - t4) / (2 * PI);
}

// Shear stress in the x-z plane per unit load; with y for x the one in the y-z plane.
inline double PointTauXz(Single x, Single zc, Single R) {
    return 3 * Quotient(Square(zc) * x, FifthPower(R)) / (2 * PI);
}

// Writes the stresses and displacements of a point load into Session: Sigma, Tau [kN/m2], u, v, w, s [cm].
void ComputePointLoad(const SoilStressInput& in, Single zc);

}  // namespace lithmark
