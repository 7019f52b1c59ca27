#include "kernels/stress/CircularLoad.h"

#include <cmath>

#include "core/Session.h"
#include "kernels/stress/PointLoad.h"

namespace lithmark {

namespace {

// A node is right above the point when it is nearer than this [m] in both directions.
constexpr Single kNear{0.001};

// A node as the point sees it: offset, area and load.
struct Element {
    Single dx, dy, A_i, Q_i;

    bool Close() const { return std::abs(dx) < kNear && std::abs(dy) < kNear; }
    // The shears leave out what is this near in one direction.
    bool BesideAxis() const { return std::abs(dx) <= kNear || std::abs(dy) <= kNear; }
    // Distance from the node, along the surface and through the soil; radius of the disc of equal area.
    Single rn() const { return std::sqrt(Square(dy) + Square(dx)); }
    Single Rn(Single zc) const { return std::sqrt(Square(zc) + (Square(dy) + Square(dx))); }
    Single r_e() const { return Sqrt(A_i / PI); }
};

// Adds term(element, node) over all nodes straight into `sum`, from 0 on.
template <typename Term>
void SumOverNodes(const CircleMesh& mesh, Single x, Single y, Single p, Single& sum, Term term) {
    sum = 0;
    for (const CircleNode& node : mesh) {
        const Element element{x - node.X, y - node.Y, node.Area, p * node.Area};
        sum += term(element, node);
    }
}

double CloseSigmaZ(const Element& e, Single zc, Single p) {
    return (1 - Quotient(Cube(zc), Power(Square(zc) + Square(e.r_e()), 1.5))) * p;
}

// Sigma_x and Sigma_y alike.
double CloseSigmaX(const Element& e, Single zc, Single p, Single Nue) {
    const Single r_e = e.r_e();
    return (Quotient(Cube(zc), Power(Square(zc) + Square(r_e), 1.5)) +
            ((2 * Nue + 1) - ((1 + Nue) + (1 + Nue)) * zc / Sqrt(Square(zc) + Square(r_e)))) *
           (p * 0.5);
}

// Outward displacement at the distance rn per unit load.
Single OutwardFactor(Single rn, Single Rn, Single zc, Single Nue, Single E) {
    return Quotient((1 + Nue) * (rn * zc / Square(Rn) - Quotient((1 - 2 * Nue) * rn, Rn + zc)), (2 * PI * E) * Rn);
}

void ComputeStresses(const CircleMesh& mesh, const SoilStressInput& in, Single zc) {
    const Single Nue = in.Nue, p = in.P;
    const auto sumOverNodes = [&](Single& sum, auto term) {
        SumOverNodes(mesh, in.x, in.y, p, sum, [&](const Element& e, const CircleNode&) { return term(e); });
    };
    Session.Sigma_z = CircleSigmaZ(mesh, in.x, in.y, zc, p);
    sumOverNodes(Session.Sigma_x, [&](const Element& e) {
        return e.Close() ? CloseSigmaX(e, zc, p, Nue) : PointSigmaX(e.dx, zc, e.Rn(zc), Nue) * e.Q_i;
    });
    sumOverNodes(Session.Sigma_y, [&](const Element& e) {
        return e.Close() ? CloseSigmaX(e, zc, p, Nue) : PointSigmaX(e.dy, zc, e.Rn(zc), Nue) * e.Q_i;
    });
    sumOverNodes(Session.Tau_xy, [&](const Element& e) {
        return e.BesideAxis() ? 0 : PointTauXy(e.dx, e.dy, zc, e.Rn(zc), Nue) * e.Q_i;
    });
    sumOverNodes(Session.Tau_xz,
                 [&](const Element& e) { return e.BesideAxis() ? 0 : PointTauXz(e.dx, zc, e.Rn(zc)) * e.Q_i; });
    sumOverNodes(Session.Tau_yz,
                 [&](const Element& e) { return e.BesideAxis() ? 0 : PointTauXz(e.dy, zc, e.Rn(zc)) * e.Q_i; });
}

void ComputeHorizontalDisplacements(const CircleMesh& mesh, const SoilStressInput& in, Single zc) {
    const Single x = in.x, y = in.y, Nue = in.Nue, E = in.Es;
    SumOverNodes(mesh, x, y, in.P, Session.u, [&](const Element& e, const CircleNode& node) -> double {
        if (std::abs(e.dx) <= kNear) return 0;
        const Single g_n = OutwardFactor(e.rn(), e.Rn(zc), zc, Nue, E);
        const int t = x > node.X ? -1 : 1;
        return -(e.Q_i * g_n * std::cos(std::atan(std::abs(e.dy) / std::abs(e.dx))) * t * 100);
    });
    SumOverNodes(mesh, x, y, in.P, Session.v, [&](const Element& e, const CircleNode& node) -> double {
        if (std::abs(e.dy) <= kNear) return 0;
        const Single g_n = OutwardFactor(e.rn(), e.Rn(zc), zc, Nue, E);
        const int t = y > node.Y ? -1 : 1;
        if (std::abs(e.dx) < kNear) return -(e.Q_i * g_n * t * 100);
        return -(e.Q_i * g_n * std::sin(std::atan(std::abs(e.dy) / std::abs(e.dx))) * t * 100);
    });
}

void ComputeVerticalDisplacements(const CircleMesh& mesh, const SoilStressInput& in, Single zc) {
    const Single Nue = in.Nue, E = in.Es, p = in.P;
    const Single c = (1 - Nue) + (1 - Nue);
    const auto discFactor = [&](Single r_e) -> Single {
        return c * (Sqrt(Square(zc) + Square(r_e)) - zc) - zc * (Quotient(zc, Sqrt(Square(zc) + Square(r_e))) - 1);
    };
    SumOverNodes(mesh, in.x, in.y, p, Session.w, [&](const Element& e, const CircleNode&) {
        if (e.Close()) {
            const Single B_e = discFactor(e.r_e());
            return Quotient((1 + Nue) * p * B_e, E) * 100;
        }
        const Single Rn = e.Rn(zc);
        return e.Q_i * Quotient((1 + Nue) * (Quotient(Square(zc), Cube(Rn)) + Quotient(c, Rn)), 2 * PI * E) * 100;
    });
    SumOverNodes(mesh, in.x, in.y, p, Session.s, [&](const Element& e, const CircleNode&) {
        if (e.Close()) {
            const Single r_e = e.r_e(), B_e = discFactor(r_e);
            return (Quotient(2 * p * (1 - Nue * Nue) * r_e, E) - Quotient((1 + Nue) * p * B_e, E)) * 100;
        }
        // Not 0: a far node is at least the near limit away.
        const Single rn = e.rn(), Rn = e.Rn(zc);
        return e.Q_i *
               Quotient((1 + Nue) * ((Quotient(c, rn) - Quotient(c, Rn)) - Quotient(Square(zc), Cube(Rn))),
                        2 * PI * E) *
               100;
    });
}

}  // namespace

Single CircleSigmaZ(const CircleMesh& mesh, Single x, Single y, Single d, Single p) {
    Single sum;
    SumOverNodes(mesh, x, y, p, sum, [&](const Element& e, const CircleNode&) {
        return e.Close() ? CloseSigmaZ(e, d, p) : e.Q_i * PointSigmaZ(d, e.Rn(d));
    });
    return sum;
}

void ComputeCircularLoad(const SoilStressInput& in, Single zc) {
    const CircleMesh mesh = BuildCircleMesh(Session.A0, Session.PrefND);
    ComputeStresses(mesh, in, zc);
    ComputeHorizontalDisplacements(mesh, in, zc);
    ComputeVerticalDisplacements(mesh, in, zc);
}

}  // namespace lithmark
