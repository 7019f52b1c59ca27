#include "kernels/stress/StressNotices.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/CircleIntegral.h"
#include "kernels/elastic/CircleMesh.h"
#include "kernels/elastic/PointLoad.h"
#include "kernels/elastic/RectangularLoad.h"
#include "kernels/stress/PrincipalValues.h"
#include "report/Measured.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

constexpr double kNear = Single(0.001);  // the kernels' limit between two points [m]
constexpr double kRoundings = 1e-6;      // relative: what 32-bit sums may be off

// Shears that are told when this much of the greatest of the three is missing.
constexpr double kShearMissing = 0.01;

struct Shears {
    double xy = 0, xz = 0, yz = 0;
    double Greatest() const { return std::max({std::abs(xy), std::abs(xz), std::abs(yz)}); }
};

// The terms that the kernel leaves out.
Shears LeftOutOfCircle(const SoilStressInput& in, Single zc) {
    Shears lost;
    for (const CircleNode& node : BuildCircleMesh(Session.A0, Session.PrefND)) {
        const Single dx = in.x - node.X, dy = in.y - node.Y;
        const bool beside = std::abs(dx) <= kNear || std::abs(dy) <= kNear;
        const bool below = std::abs(dx) < kNear && std::abs(dy) < kNear;
        if (!beside || below) continue;
        const double Q = in.P * node.Area;
        const Single R = std::sqrt(Square(zc) + Square(dx) + Square(dy));
        lost.xy += Q * PointTauXy(dx, dy, zc, R, in.Nue);
        lost.xz += Q * PointTauXz(dx, zc, R);
        lost.yz += Q * PointTauXz(dy, zc, R);
    }
    return lost;
}

// On the line of an edge a corner's term of Tau_xy does not vanish with the corner's side.
Shears LeftOutOfRectangle(const SoilStressInput& in, Single zc) {
    Shears lost;
    double sign = 1;
    for (const SubRectangle& corner : SplitRectangle(in.x, in.y, in.A, in.B)) {
        if (std::abs(corner.X) <= kNear || std::abs(corner.Y) <= kNear) {
            const double R3 = std::sqrt(Square(zc) + Square(corner.X) + Square(corner.Y));
            lost.xy += sign * (zc / R3 + (1 - 2 * in.Nue) * Ln(zc + R3)) * in.P / (2 * PI);
        }
        sign = -sign;
    }
    return lost;
}

void MeasureShears(const SoilStressInput& in, Single zc) {
    const Shears lost = in.LoadType == LoadShape::Circle ? LeftOutOfCircle(in, zc) : LeftOutOfRectangle(in, zc);
    const Shears told{Session.Tau_xy, Session.Tau_xz, Session.Tau_yz};
    const Shears full{told.xy + lost.xy, told.xz + lost.xz, told.yz + lost.yz};
    const double least = std::max(kShearMissing * full.Greatest(), 10 * kRoundings * std::abs(in.P));
    const auto tell = [&](const char* name, double value, double with) {
        if (std::abs(with - value) > least)
            Notices().Raise(NoticeId::ShearInLine, 907030_text,
                            {name, MeasuredPressure(value), MeasuredPressure(with)});
    };
    tell("Tau_xy", told.xy, full.xy);
    tell("Tau_xz", told.xz, full.xz);
    tell("Tau_yz", told.yz, full.yz);
}

// The foot of the point lies under the load or within one node spacing of it, and below no node.
bool BetweenNodes(const SoilStressInput& in, double spacing) {
    if (std::hypot(in.x, in.y) > Session.A0 + spacing) return false;
    const CircleMesh mesh = BuildCircleMesh(Session.A0, Session.PrefND);
    return std::none_of(mesh.begin(), mesh.end(), [&](const CircleNode& node) {
        return std::abs(in.x - node.X) < kNear && std::abs(in.y - node.Y) < kNear;
    });
}

void MeasureCircle(const SoilStressInput& in, Single zc) {
    const double spacing = Quotient(2 * Session.A0, Session.PrefND), r = std::hypot(in.x, in.y);
    const bool displacement = Session.ProblemType == Problem::SoilDisplacement;
    if (!displacement && in.z >= spacing) return;
    if (!BetweenNodes(in, spacing)) return;
    if (displacement) {
        const double s = CircleIntegral(Session.A0, r, [&](double rho) { return DiscSettlement(rho, zc, in.Nue); }) *
                         Quotient(in.P, in.Es) * 100;
        Notices().Raise(NoticeId::CircleNearNodes, 907031_text,
                        {MeasuredLength(spacing), MeasuredSettlement(Session.s), MeasuredSettlement(s)});
    } else {
        const double stress = CircleIntegral(Session.A0, r, [&](double rho) { return DiscStress(rho, zc); }) * in.P;
        Notices().Raise(NoticeId::CircleNearNodes, 907032_text,
                        {MeasuredLength(spacing), MeasuredPressure(Session.Sigma_z), MeasuredPressure(stress)});
    }
}

// The deviatoric stress of three principal stresses is never greater than their greatest difference. In the x-z plane's
// own terms the third of them is Sigma_y, which the report does not print among them.
void MeasureDeviator() {
    const PrincipalStresses principal =
        ComputePrincipalStresses(Session.Sigma_x, Session.Sigma_y, Session.Sigma_z, Session.Tau_xz);
    const double max = principal.max_Sigma, min = principal.min_Sigma, difference = max - min;
    if (principal.q <= difference * (1 + kRoundings)) return;
    const double third = Session.Sigma_y;
    const double q = std::sqrt((Square(difference) + Square(third - min) + Square(max - third)) / 2);
    if (third < min || third > max)
        Notices().Raise(NoticeId::QImpossible, 907270_text,
                        {MeasuredPressure(principal.q), MeasuredPressure(difference), MeasuredPressure(third),
                         MeasuredPressure(q)});
    else
        Notices().Raise(NoticeId::QImpossible, 907033_text,
                        {MeasuredPressure(principal.q), MeasuredPressure(difference), MeasuredPressure(q)});
}

}  // namespace

void RaiseStressNotices(const SoilStressInput& in) {
    const Single zc = FormulaDepth(in.z);
    const bool area = in.LoadType == LoadShape::Rectangle || in.LoadType == LoadShape::Circle;
    if (in.LoadType == LoadShape::Circle) MeasureRun([&] { MeasureCircle(in, zc); });
    if (area && Session.ProblemType != Problem::SoilDisplacement) MeasureRun([&] { MeasureShears(in, zc); });
    if (Session.ProblemType == Problem::SoilStress) MeasureRun([] { MeasureDeviator(); });
}

}  // namespace lithmark
