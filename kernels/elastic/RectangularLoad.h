// Stresses and displacements in an elastic half-space under a uniform pressure on a rectangle of its surface.
//
// Assumptions: half-space linear elastic, homogeneous, isotropic, without weight; load flexible, sides a along x and b
// along y, centred on the origin.
// The point is the common corner of four rectangles whose signed sum is the load (superposition after Steinbrenner
// 1934). Corner values: vertical stress after Newmark (1935), the other stresses after Holl (1940), vertical
// displacement after Steinbrenner (1934).
// Symbols: zc depth > 0 [m]; P pressure [kN/m2]; Nue, Es [kN/m2] of the soil.
// Signs: compression positive, w downward. The signs of x and y are lost: all results are those of the point's mirror
// image with positive coordinates, shears and horizontal displacements too.
#pragma once

#include <array>
#include <optional>

#include "base/Single.h"
#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// Sides of a rectangle with a corner above the point [m]. A point within the load gives sides of either sign.
struct SubRectangle {
    Single X, Y;
};
using SubRectangles = std::array<SubRectangle, 4>;

// The four rectangles of a load a by b and a point (x, y). Their signs alternate: +, -, +, -.
SubRectangles SplitRectangle(Single x, Single y, Single a, Single b);

// The signed sum of the corner terms of the vertical stress at depth d [m]: Sigma_z = p * sum / (2 pi).
// DivisionByZero for d = 0.
Single RectangleSigmaZSum(const SubRectangles& rectangles, Single d);

// The steps behind the results of a rectangle, for a check by hand. A term carries its corner's sign; a corner that is
// left out has none. Lengths in m, angles in radians.
struct CornerRecord {
    struct Corner {
        Single X, Y, Rx, Ry, R3;
    };
    // The sums: w = f (plane WLog - shear Angle), s = f (shear Angle + plane SLog).
    enum Sum { SigmaZ, SigmaX, SigmaY, TauXy, TauXz, TauYz, U, V, WLog, SLog, Angle, kSums };

    std::array<Corner, 4> Corners{};
    std::array<std::array<std::optional<double>, 4>, kSums> Terms{};
};

// Writes the stresses and displacements of the rectangle into Session: Sigma, Tau [kN/m2], u, v, w, s [cm].
// Fails where a quotient in a logarithm divides by zero: beside an edge, when a side is just above 1 mm and the other
// one so long that the distance rounds to it.
// With a record the steps go there too.
void ComputeRectangularLoad(const SoilStressInput& in, Single zc, CornerRecord* record = nullptr);

}  // namespace lithmark
