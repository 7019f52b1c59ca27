// What a load on the surface does to an elastic soil, in closed form: settlement of the surface, and mean vertical
// stress between two depths.
//
// Assumptions
// - The soil is elastic, homogeneous and isotropic; the load is vertical, flexible and on the surface.
// - The half-space is infinitely deep; the layer of thickness h lies on a rigid base. Its settlement is taken as the
//   half-space's settlement of the surface less that at depth h (Steinbrenner, 1934): an approximation, good for
//   h/b of about 1 and more.
//
// Symbols: a, b sides of a rectangle whose corner is the point looked at [m]; x, y offsets between load and point [m];
// z1 < z2 depths [m]; h thickness of the layer [m]; nu Poisson's ratio. A settlement factor is the settlement times the
// modulus of elasticity for unit pressure (rectangle, [m]) or unit force (point, [1/m]); a stress factor is the mean
// stress for unit pressure (rectangle, circle, [-]) or unit force (point, [1/m2]). Load and modulus are the caller's.
//
// Every quantity with a letter is a Single, rounded where it is assigned; the rest of an expression runs in 64 bits.
// Far from the load and for thin intervals the stress factors are small differences of large terms: their error is some
// units of the last place of the largest term. x^(3/2) is taken as x sqrt(x).
//
// Failures: nothing is tested beforehand except as told. A point on the load point, a side of 0 or one that vanishes
// against the other in 32 bits, and z2 = z1 divide by zero or take the logarithm of 0 (DivisionByZero,
// InvalidArgument).
#pragma once

#include "base/Single.h"

namespace lithmark {

// Settlement factor at the corner of a rectangle on the half-space (Schleicher, 1926).
Single RectCornerHalfSpace(Single a, Single b, Single nu);

// Settlement factor of a point load on the half-space (Boussinesq, 1885).
inline Single PointHalfSpace(Single x, Single y, Single nu) {
    const Single r = std::sqrt(Square(x) + Square(y));
    return Quotient(1 - Square(nu), PI * r);
}

// Settlement factor at the corner of a rectangle on the layer (Steinbrenner, 1934).
Single RectCornerLayer(Single a, Single b, Single h, Single nu);

// Settlement factor of a point load on the layer: Boussinesq's settlement of the surface less that at depth h.
inline Single PointLayer(Single x, Single y, Single h, Single nu) {
    const Single r = std::sqrt(Square(x) + Square(y));
    const Single R = std::sqrt(Square(x) + Square(y) + Square(h));
    const Single c = (1 - nu) + (1 - nu);
    const Single t = Quotient(c, r) - Quotient(c, R) - Quotient(Square(h), Cube(R));
    return (nu + 1) * t / (PI + PI);
}

// Mean stress under the corner of a rectangle: the depth mean of Newmark's (1935) corner stress, which is
// Steinbrenner's settlement for nu = 0. 0 when a side is shorter than 1 mm. The rectangle's sides may carry signs for
// superposition.
Single MeanCornerFactor(Single a, Single b, Single z1, Single z2);

// Mean stress on the axis of a circle of radius a: the depth mean of 1 - z^3/(a^2 + z^2)^(3/2).
Single MeanCircleAxisFactor(Single a, Single z1, Single z2);

// Mean stress at offset (x, y) from a point load: the depth mean of Boussinesq's 3 z^3/(2 pi R^5).
inline Single MeanPointFactor(Single x, Single y, Single z1, Single z2) {
    const Single r = std::sqrt(Square(x) + Square(y));
    const Single p = Square(r);
    const Single U2 = Square(r) + Square(z2);
    const Single U1 = Square(r) + Square(z1);
    const double root2 = std::sqrt(U2), root1 = std::sqrt(U1);
    Single t = Quotient(p, U2 * root2);
    t = t - Quotient(3, root2);
    t = t - Quotient(p, U1 * root1);
    t = Quotient(3, root1) + t;
    return Quotient(t, (z2 - z1) * (PI + PI));
}

}  // namespace lithmark
