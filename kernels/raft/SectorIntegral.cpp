#include "kernels/raft/SectorIntegral.h"

#include "services/numerics/NumericLib.h"

namespace lithmark {

namespace {

constexpr int kOrder = 4;

}  // namespace

Single SectorKernel(Single r0, Single r, Single theta, Single z, int kind) {
    const Single D = Square(r0) + Square(r) - 2 * r0 * r * std::cos(theta);
    const double square = D + Square(z);
    switch (kind) {
        case 0:
            return Quotient(r, Square(square) * Sqrt(square));
        case 2:
            return Quotient(r, Sqrt(D));
        case 3:
            return Quotient(r, Sqrt(square));
        case 4:
            return Quotient(r, square * Sqrt(square));
        default:
            return 0;
    }
}

Single SectorIntegral(Single r1, Single r2, Single dTheta, Single z, int kind) {
    const double cubes = Cube(r2) - Cube(r1);
    const Single rc = Quotient(cubes + cubes, Square(r2) - Square(r1)) / 3;
    const Single from[] = {r1, rc}, to[] = {rc, r2};
    Matrix<Single> corners, points, dN, J;
    Array<Single> N;
    NumericLib::GaussPoints(points, kOrder);
    Single result = 0;
    for (int piece = 0; piece < 2; ++piece) {
        NumericLib::QuadCorners(from[piece], to[piece], 0, dTheta / 2, corners);
        for (int i = 1; i <= kOrder; ++i) {
            for (int j = 1; j <= kOrder; ++j) {
                NumericLib::ShapeFunctions(dN, N, points, i, j);
                NumericLib::MatMul(2, 4, 2, dN, corners, J);
                const Single detJ = J(1, 1) * J(2, 2) - J(1, 2) * J(2, 1);
                Single r = 0, theta = 0;
                for (int k = 1; k <= 4; ++k) {
                    r += N(k) * corners(k, 1);
                    theta += N(k) * corners(k, 2);
                }
                const Single f = SectorKernel(rc, r, theta, z, kind);
                result += detJ * points(i, 2) * points(j, 2) * f;
            }
        }
    }
    return result;
}

Single MeanSectorFactor(Single r1, Single r2, Single dTheta, Single z1, Single z2) {
    Single t = -2 * SectorIntegral(r1, r2, dTheta, z2, 3);
    t = t - Square(z2) * SectorIntegral(r1, r2, dTheta, z2, 4);
    const Single I3 = SectorIntegral(r1, r2, dTheta, z1, 3);
    t = I3 + I3 + t;
    t = Square(z1) * SectorIntegral(r1, r2, dTheta, z1, 4) + t;
    return Quotient(t, (z2 - z1) * PI);
}

}  // namespace lithmark
