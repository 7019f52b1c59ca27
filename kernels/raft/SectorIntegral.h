// The effect of a loaded polar sector on its own centroid, by Gauss-Legendre integration.
//
// A sector lies between the radii r1 < r2 [m] and has the angle dTheta [rad]. Integrands have their pole at the
// centroid, so the radial range is split there: the pole is then a corner of both pieces, and never a Gauss point.
#pragma once

#include "base/Single.h"

namespace lithmark {

// The kernel of the polar integrals, with D the square of the distance in plan between the radius r0 on the axis and
// the point (r, theta), and z a depth [m]. By kind:
//   0  r/(D + z^2)^(5/2)   stress at a depth
//   2  r/D^(1/2)           settlement of the surface
//   3  r/(D + z^2)^(1/2)   settlement at a depth, first term
//   4  r/(D + z^2)^(3/2)   settlement at a depth, second term
// Any other kind gives 0. DivisionByZero at the pole.
Single SectorKernel(Single r0, Single r, Single theta, Single z, int kind);

// The integral of the kernel over half the sector, theta from 0 to dTheta/2, for the centroid's radius; the caller
// doubles it. Each of the two pieces is worked with 4 by 4 Gauss points. Accuracy, by the square root of the sector's
// area: at the surface 1.5 % too small for a sector about as long as wide and 3 % for sides of 1 to 3; within 0.4 %
// from a fifth of that length downward and 0.03 % from half of it. In between (kind 4) up to 5 %. DivisionByZero for r1
// = r2.
Single SectorIntegral(Single r1, Single r2, Single dTheta, Single z, int kind);

// Mean vertical stress between the depths z1 and z2 at the centroid of a whole sector under unit pressure [-]:
// Boussinesq's mean stress of a point load, integrated over the sector. DivisionByZero for z2 = z1.
Single MeanSectorFactor(Single r1, Single r2, Single dTheta, Single z1, Single z2);

}  // namespace lithmark
