#include "kernels/elastic/RectangularLoad.h"

#include <algorithm>
#include <cmath>

#include "core/Session.h"

namespace lithmark {

namespace {

// A rectangle whose side is not longer than this [m] is left out where its terms would be singular.
constexpr Single kNarrow{0.001};

// A sub-rectangle with its distances: Rx and Ry from the point to the far ends of the sides through the corner, R3 to
// the opposite corner.
struct Corner {
    Single X, Y, Rx, Ry, R3;
    bool Narrow;
};

Corner MakeCorner(const SubRectangle& rectangle, Single zc) {
    const Single X = rectangle.X, Y = rectangle.Y;
    return {X,
            Y,
            std::sqrt(Square(zc) + Square(X)),
            std::sqrt(Square(zc) + Square(Y)),
            std::sqrt(Square(zc) + (Square(Y) + Square(X))),
            std::abs(Y) <= kNarrow || std::abs(X) <= kNarrow};
}

using Corners = std::array<Corner, 4>;

Corners MakeCorners(const SubRectangles& r, Single zc) {
    return {MakeCorner(r[0], zc), MakeCorner(r[1], zc), MakeCorner(r[2], zc), MakeCorner(r[3], zc)};
}

// The sum of term(corner) with the signs +, -, +, -. A corner that is left out takes its sign with it.
enum class NarrowCorners { Count, LeftOut };
using RecordedTerms = std::array<std::optional<double>, 4>;
template <NarrowCorners narrow, typename Term>
Single SignedSum(const Corners& corners, Term term, RecordedTerms* record = nullptr) {
    Single sum = 0;
    double sign = 1;
    for (const Corner& corner : corners) {
        if (narrow == NarrowCorners::Count || !corner.Narrow) {
            const Single T = term(corner);
            sum += sign * T;
            if (record != nullptr) (*record)[static_cast<std::size_t>(&corner - corners.data())] = sign * T;
        }
        sign = -sign;
    }
    return sum;
}

// Newmark (1935).
double SigmaZTerm(const Corner& c, Single zc) {
    return (Quotient(1, Square(c.Ry)) + Quotient(1, Square(c.Rx))) * c.X * c.Y * zc / c.R3 +
           std::atan(Quotient(c.X * c.Y, zc) / c.R3);
}

// Holl (1940). For Sigma_x; with the sides exchanged and Ry for Rx, for Sigma_y.
double SigmaXTerm(Single X, Single Y, Single Rx, Single R3, Single zc, Single Nue) {
    return X * Y * zc / (Rx * Rx * R3) -
           (2 * Nue * std::atan((X * Y / zc) / R3) + (1 - 2 * Nue) * (std::atan(Y / X) - std::atan((zc * Y / X) / R3)));
}

// Holl (1940). For Tau_xz; with X for Y and Rx and Ry exchanged, for Tau_yz.
double TauXzTerm(Single Y, Single Rx, Single Ry, Single R3, Single zc) {
    return (Square(zc) * Y / Square(Rx)) / R3 - Y / Ry;
}

// For u; with the sides exchanged, for v. Deliberate: no factor X before the last arctangent, though the integral of
// the point load's displacement has one; the theory page tells the difference.
double DisplacementTerm(Single X, Single Y, Single R3, Single zc, Single Nue) {
    const Single h = zc * Ln(Quotient(R3 + Y, R3 - Y)) / 2;
    const Single k = ((Y * Ln(zc + R3) + h) + X * std::atan(Y / X)) - std::atan((zc * Y / X) / R3);
    return (1 - 2 * Nue) * k + h;
}

// Steinbrenner (1934). w at the depth zc, and s, the displacement of the surface less w.
void ComputeVerticalDisplacements(const Corners& corners, const SoilStressInput& in, Single zc, CornerRecord* record) {
    const Single p = in.P, Nue = in.Nue, E = in.Es;
    Single wSum = 0, sSum = 0, angleSum = 0;
    double S = 1;
    for (const Corner& c : corners) {
        if (!c.Narrow) {
            const Single X = c.X, Y = c.Y, R3 = c.R3;
            const Single D = std::sqrt(Square(Y) + Square(X));
            const double wTerm = S * (Y * Ln(Quotient(R3 + X, R3 - X))) + S * (X * Ln(Quotient(R3 + Y, R3 - Y)));
            const double sTerm = S * (Y * Ln(Quotient(Quotient((R3 - X) * (D + X), R3 + X), D - X))) +
                                 S * (X * Ln(Quotient(Quotient((R3 - Y) * (D + Y), R3 + Y), D - Y)));
            const double angle = S * zc * std::atan((X * Y / zc) / R3);
            wSum += wTerm;
            sSum += sTerm;
            angleSum += angle;
            if (record != nullptr) {
                const auto at = static_cast<std::size_t>(&c - corners.data());
                record->Terms[CornerRecord::WLog][at] = wTerm;
                record->Terms[CornerRecord::SLog][at] = sTerm;
                record->Terms[CornerRecord::Angle][at] = angle;
            }
        }
        S = -S;
    }
    const double shear = (1 - Nue) - (Square(Nue) + Square(Nue)), plane = 1 - Square(Nue);
    Session.w = (plane * wSum - shear * angleSum) * Quotient(1, 2 * PI * E) * p * 100;
    Session.s = (shear * angleSum + plane * sSum) * Quotient(1, 2 * PI * E) * p * 100;
}

}  // namespace

SubRectangles SplitRectangle(Single x, Single y, Single a, Single b) {
    const Single X = std::max(std::abs(a / 2 - x), std::abs(-a / 2 - x));
    const Single Y = std::max(std::abs(b / 2 - y), std::abs(-b / 2 - y));
    return {{{X, Y}, {X, Y - b}, {X - a, Y - b}, {X - a, Y}}};
}

Single RectangleSigmaZSum(const SubRectangles& rectangles, Single d) {
    return SignedSum<NarrowCorners::Count>(MakeCorners(rectangles, d),
                                           [&](const Corner& c) { return SigmaZTerm(c, d); });
}

void ComputeRectangularLoad(const SoilStressInput& in, Single zc, CornerRecord* record) {
    const Single p = in.P, Nue = in.Nue, E = in.Es;
    const Corners corners = MakeCorners(SplitRectangle(in.x, in.y, in.A, in.B), zc);
    using Sum = CornerRecord::Sum;
    const auto recorded = [&](Sum sum) { return record != nullptr ? &record->Terms[sum] : nullptr; };
    const auto sumOfAll = [&](Sum of, auto term) {
        return SignedSum<NarrowCorners::Count>(corners, term, recorded(of));
    };
    const auto sumOfWide = [&](Sum of, auto term) {
        return SignedSum<NarrowCorners::LeftOut>(corners, term, recorded(of));
    };
    if (record != nullptr)
        std::transform(corners.begin(), corners.end(), record->Corners.begin(), [](const Corner& c) {
            return CornerRecord::Corner{c.X, c.Y, c.Rx, c.Ry, c.R3};
        });

    Single sum = sumOfAll(Sum::SigmaZ, [&](const Corner& c) { return SigmaZTerm(c, zc); });
    Session.Sigma_z = sum / (2 * PI) * p;
    sum = sumOfWide(Sum::SigmaX, [&](const Corner& c) { return SigmaXTerm(c.X, c.Y, c.Rx, c.R3, zc, Nue); });
    Session.Sigma_x = -p * (sum / (2 * PI));
    sum = sumOfWide(Sum::SigmaY, [&](const Corner& c) { return SigmaXTerm(c.Y, c.X, c.Ry, c.R3, zc, Nue); });
    Session.Sigma_y = -p * (sum / (2 * PI));

    sum = sumOfWide(Sum::TauXy, [&](const Corner& c) { return zc / c.R3 + (1 - 2 * Nue) * Ln(zc + c.R3); });
    Session.Tau_xy = sum / (2 * PI) * p;
    sum = sumOfAll(Sum::TauXz, [&](const Corner& c) { return TauXzTerm(c.Y, c.Rx, c.Ry, c.R3, zc); });
    Session.Tau_xz = -p * (sum / (2 * PI));
    sum = sumOfAll(Sum::TauYz, [&](const Corner& c) { return TauXzTerm(c.X, c.Ry, c.Rx, c.R3, zc); });
    Session.Tau_yz = -p * (sum / (2 * PI));

    sum = sumOfWide(Sum::U, [&](const Corner& c) { return DisplacementTerm(c.X, c.Y, c.R3, zc, Nue); });
    Session.u = (-100 * p) * Quotient((1 + Nue) * sum, 2 * PI * E);
    sum = sumOfWide(Sum::V, [&](const Corner& c) { return DisplacementTerm(c.Y, c.X, c.R3, zc, Nue); });
    Session.v = (-100 * p) * Quotient((1 + Nue) * sum, 2 * PI * E);
    ComputeVerticalDisplacements(corners, in, zc, record);
}

}  // namespace lithmark
