// The input of a stress run, and the depth that its formulas use.
#pragma once

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

// Base units: m, kN, kN/m2. The load acts on the surface z = 0 with its centre at the origin; z points downward.
struct SoilStressInput {
    Single x, y, z;  // the point; z is its depth
    Single Q;        // point load
    Single P;        // uniform pressure
    Single A, B;     // rectangle: sides along x and y; circle: A is the radius
    Single Nue, Es;  // Poisson's ratio, modulus of elasticity
    Integer LoadType;
};

// The depth in all formulas: z, or 1e-10 m for a point exactly on the surface, where the formulas divide by the depth.
inline Single FormulaDepth(Single z) {
    return z == 0 ? Single(1e-10) : z;
}

}  // namespace lithmark
