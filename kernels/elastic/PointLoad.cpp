#include "kernels/elastic/PointLoad.h"

#include <cmath>

#include "core/Session.h"

namespace lithmark {

namespace {

// Displacements in cm, at r from the axis of the load.
void ComputePointDisplacements(const SoilStressInput& in, Single zc, Single R, Single r) {
    const Single x = in.x, y = in.y, Q = in.Q, Nue = in.Nue, E = in.Es;

    const Single f = r * zc / Square(R) - Quotient((1 - 2 * Nue) * r, R + zc);
    const Single g = Quotient((1 + Nue) * f, (2 * PI * E) * R);
    // Deliberate: the arctangent of the plain quotient loses the quadrant; a point at -x has the u of its mirror image
    // at +x, and v has the sign of y/x.
    if (x == 0)
        Session.u = 0;
    else
        Session.u = g * Q * std::cos(std::atan(y / x)) * 100;
    if (x == 0 && y != 0)
        Session.v = g * Q * 100;
    else if (y == 0)
        Session.v = 0;
    else
        Session.v = g * Q * std::sin(std::atan(y / x)) * 100;

    const Single c = (1 - Nue) + (1 - Nue);
    Single t = Quotient(Square(zc), Cube(R)) + Quotient(c, R);
    Session.w = Quotient((1 + Nue) * t, 2 * PI * E) * Q * 100;
    // The surface displacement less w. On the axis it is as large as the substitute for r makes it.
    t = (Quotient(c, r) - Quotient(c, R)) - Quotient(Square(zc), Cube(R));
    Session.s = Quotient((1 + Nue) * t, 2 * PI * E) * Q * 100;
}

}  // namespace

void ComputePointLoad(const SoilStressInput& in, Single zc) {
    const Single x = in.x, y = in.y, Q = in.Q, Nue = in.Nue;
    const Single R = std::sqrt(Square(zc) + (Square(y) + Square(x)));
    Single r = std::sqrt(Square(y) + Square(x));
    if (r == 0) r = 1e-10;

    Session.Sigma_z = PointSigmaZ(zc, R) * Q;
    Session.Sigma_x = PointSigmaX(x, zc, R, Nue) * Q;
    Session.Sigma_y = PointSigmaX(y, zc, R, Nue) * Q;
    Session.Tau_xy = PointTauXy(x, y, zc, R, Nue) * Q;
    Session.Tau_xz = PointTauXz(x, zc, R) * Q;
    Session.Tau_yz = PointTauXz(y, zc, R) * Q;
    ComputePointDisplacements(in, zc, R, r);
}

}  // namespace lithmark
