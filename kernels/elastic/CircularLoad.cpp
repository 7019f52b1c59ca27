#include "kernels/elastic/CircularLoad.h"

#include <cmath>

#include "core/Session.h"
#include "kernels/elastic/PointLoad.h"

namespace lithmark {

namespace {

// A node is right above the point when it is nearer than this [m] in both directions.
constexpr Single kNear{0.001};

// A node as the point sees it: offset, area, load, and the distance from it along the surface and through the soil.
struct Element {
    Single dx, dy, A_i, Q_i, rn, Rn;

    Element() = default;
    Element(const CircleNode& node, Single x, Single y, Single zc, Single p)
        : dx(x - node.X),
          dy(y - node.Y),
          A_i(node.Area),
          Q_i(p * A_i),
          rn(std::sqrt(Square(dy) + Square(dx))),
          Rn(std::sqrt(Square(zc) + (Square(dy) + Square(dx)))) {}

    bool Close() const { return std::abs(dx) < kNear && std::abs(dy) < kNear; }
    // The shears leave out what is this near in one direction.
    bool BesideAxis() const { return std::abs(dx) <= kNear || std::abs(dy) <= kNear; }
    // Radius of the disc of equal area.
    Single r_e() const { return Sqrt(A_i / PI); }
};

// Seen once for all results: their passes over the nodes then cost no more than their own formulas.
using Elements = Array<Element>;

Elements SeeElements(const CircleMesh& mesh, Single x, Single y, Single zc, Single p) {
    Elements elements(mesh.Lower(), mesh.Upper());
    for (int i = mesh.Lower(); i <= mesh.Upper(); ++i) elements(i) = Element(mesh(i), x, y, zc, p);
    return elements;
}

// Adds term(element) over all nodes straight into the result, from 0 on.
template <typename Term>
void SumOverNodes(const Elements& elements, Single& result, Term term) {
    result = 0;
    for (const Element& element : elements) result += term(element);
}

double SigmaZTerm(const Element& e, Single zc, Single p) {
    if (e.Close()) return (1 - Quotient(Cube(zc), Power(Square(zc) + Square(e.r_e()), 1.5))) * p;
    return e.Q_i * PointSigmaZ(zc, e.Rn);
}

// Sigma_x and Sigma_y alike.
double CloseSigmaX(const Element& e, Single zc, Single p, Single Nue) {
    const Single r_e = e.r_e();
    return (Quotient(Cube(zc), Power(Square(zc) + Square(r_e), 1.5)) +
            ((2 * Nue + 1) - ((1 + Nue) + (1 + Nue)) * zc / Sqrt(Square(zc) + Square(r_e)))) *
           (p * 0.5);
}

// Outward displacement at the distance rn per unit load.
Single OutwardFactor(const Element& e, Single zc, Single Nue, Single E) {
    return Quotient((1 + Nue) * (e.rn * zc / Square(e.Rn) - Quotient((1 - 2 * Nue) * e.rn, e.Rn + zc)),
                    (2 * PI * E) * e.Rn);
}

void ComputeStresses(const Elements& elements, const SoilStressInput& in, Single zc) {
    const Single Nue = in.Nue, p = in.P;
    SumOverNodes(elements, Session.Sigma_z, [&](const Element& e) { return SigmaZTerm(e, zc, p); });
    SumOverNodes(elements, Session.Sigma_x, [&](const Element& e) {
        return e.Close() ? CloseSigmaX(e, zc, p, Nue) : PointSigmaX(e.dx, zc, e.Rn, Nue) * e.Q_i;
    });
    SumOverNodes(elements, Session.Sigma_y, [&](const Element& e) {
        return e.Close() ? CloseSigmaX(e, zc, p, Nue) : PointSigmaX(e.dy, zc, e.Rn, Nue) * e.Q_i;
    });
    SumOverNodes(elements, Session.Tau_xy,
                 [&](const Element& e) { return e.BesideAxis() ? 0 : PointTauXy(e.dx, e.dy, zc, e.Rn, Nue) * e.Q_i; });
    SumOverNodes(elements, Session.Tau_xz,
                 [&](const Element& e) { return e.BesideAxis() ? 0 : PointTauXz(e.dx, zc, e.Rn) * e.Q_i; });
    SumOverNodes(elements, Session.Tau_yz,
                 [&](const Element& e) { return e.BesideAxis() ? 0 : PointTauXz(e.dy, zc, e.Rn) * e.Q_i; });
}

void ComputeHorizontalDisplacements(const Elements& elements, const SoilStressInput& in, Single zc) {
    const Single Nue = in.Nue, E = in.Es;
    SumOverNodes(elements, Session.u, [&](const Element& e) -> double {
        if (std::abs(e.dx) <= kNear) return 0;
        const Single g_n = OutwardFactor(e, zc, Nue, E);
        const int t = e.dx > 0 ? -1 : 1;
        return -(e.Q_i * g_n * std::cos(std::atan(std::abs(e.dy) / std::abs(e.dx))) * t * 100);
    });
    SumOverNodes(elements, Session.v, [&](const Element& e) -> double {
        if (std::abs(e.dy) <= kNear) return 0;
        const Single g_n = OutwardFactor(e, zc, Nue, E);
        const int t = e.dy > 0 ? -1 : 1;
        if (std::abs(e.dx) < kNear) return -(e.Q_i * g_n * t * 100);
        return -(e.Q_i * g_n * std::sin(std::atan(std::abs(e.dy) / std::abs(e.dx))) * t * 100);
    });
}

void ComputeVerticalDisplacements(const Elements& elements, const SoilStressInput& in, Single zc) {
    const Single Nue = in.Nue, E = in.Es, p = in.P;
    const Single c = (1 - Nue) + (1 - Nue);
    const auto discFactor = [&](Single r_e) -> Single {
        return c * (Sqrt(Square(zc) + Square(r_e)) - zc) - zc * (Quotient(zc, Sqrt(Square(zc) + Square(r_e))) - 1);
    };
    SumOverNodes(elements, Session.w, [&](const Element& e) {
        if (e.Close()) {
            const Single B_e = discFactor(e.r_e());
            return Quotient((1 + Nue) * p * B_e, E) * 100;
        }
        return e.Q_i * Quotient((1 + Nue) * (Quotient(Square(zc), Cube(e.Rn)) + Quotient(c, e.Rn)), 2 * PI * E) * 100;
    });
    SumOverNodes(elements, Session.s, [&](const Element& e) {
        if (e.Close()) {
            const Single r_e = e.r_e(), B_e = discFactor(r_e);
            return (Quotient(2 * p * (1 - Nue * Nue) * r_e, E) - Quotient((1 + Nue) * p * B_e, E)) * 100;
        }
        // rn is not 0: a far node is at least the near limit away.
        return e.Q_i *
               Quotient((1 + Nue) * ((c / e.rn - Quotient(c, e.Rn)) - Quotient(Square(zc), Cube(e.Rn))), 2 * PI * E) *
               100;
    });
}

}  // namespace

Single CircleSigmaZ(const CircleMesh& mesh, Single x, Single y, Single d, Single p) {
    Single sum = 0;
    for (const CircleNode& node : mesh) sum += SigmaZTerm(Element(node, x, y, d, p), d, p);
    return sum;
}

void ComputeCircularLoad(const SoilStressInput& in, Single zc) {
    const CircleMesh mesh = BuildCircleMesh(Session.A0, Session.PrefND);
    const Elements elements = SeeElements(mesh, in.x, in.y, zc, in.P);
    ComputeStresses(elements, in, zc);
    ComputeHorizontalDisplacements(elements, in, zc);
    ComputeVerticalDisplacements(elements, in, zc);
}

}  // namespace lithmark
