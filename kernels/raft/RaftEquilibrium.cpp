#include "kernels/raft/RaftEquilibrium.h"

#include "kernels/raft/RaftProgress.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Determinant of the 3 by 3 matrix with the columns a, b, c, expanded along its first row.
struct Column {
    double r1, r2, r3;
};
double Determinant(const Column& a, const Column& b, const Column& c) {
    return a.r1 * (b.r2 * c.r3 - c.r2 * b.r3) - b.r1 * (a.r2 * c.r3 - c.r2 * a.r3) + c.r1 * (a.r2 * b.r3 - b.r2 * a.r3);
}

}  // namespace

LoadCase LoadCaseOf(Single exzX, Single exzY) {
    if (exzX != 0) return exzY != 0 ? LoadCase::BothEccentric : LoadCase::AlongX;
    return exzY != 0 ? LoadCase::AlongY : LoadCase::Central;
}

RaftLoad EccentricLoad(Single q, Single exzX, Single exzY) {
    return {q, q * exzY, q * exzX};
}

RaftEquilibrium::RaftEquilibrium(LoadCase k, int n, const Matrix<Single>& stiffness, const Array<Single>& u,
                                 const Array<Single>& v, const Array<Single>& weight)
    : k_(k), n_(n), t_(3, n), g_(3, 3), w_(n, 3) {
    const bool alongX = TiltsAlongX(k), alongY = TiltsAlongY(k);
    const auto progress = ProgressBetween(kInverseDone, kEquilibriumDone);
    // Row by row, so that the matrix is read as it lies in memory; each sum still runs in ascending r.
    for (int r = 1; r <= n; ++r) {
        const auto row = stiffness.Row(r);
        const double wr = weight(r), vr = alongY ? static_cast<double>(v(r)) : 0, ur = u(r);
        const auto force = t_.Row(1), momentY = t_.Row(2), momentX = t_.Row(3);
        for (int c = 0; c < n; ++c) {
            const auto i = static_cast<std::size_t>(c);
            force[i] += wr * row[i];
            if (alongY) momentY[i] += vr * row[i] * wr;
            if (alongX) momentX[i] += ur * row[i] * wr;
            w_(r, 1) += row[i];
            if (alongY) w_(r, 2) += v(c + 1) * row[i];
            if (alongX) w_(r, 3) += u(c + 1) * row[i];
        }
        if (r % 64 == 0) progress(static_cast<double>(r) / n);
    }
    for (int m = 1; m <= 3; ++m) {
        for (int c = 1; c <= n; ++c) {
            g_(m, 1) += t_(m, c);
            if (alongY) g_(m, 2) += v(c) * t_(m, c);
            if (alongX) g_(m, 3) += u(c) * t_(m, c);
        }
    }
}

RaftEquilibrium::RaftEquilibrium(LoadCase k, const UnitForces& forces, const Array<Single>& u, const Array<Single>& v)
    : k_(k), n_(static_cast<int>(forces.Settled.size())), t_(3, n_), g_(3, 3), w_(n_, 3) {
    const std::vector<double>* const parts[] = {&forces.Settled, &forces.TiltedY, &forces.TiltedX};
    for (int m = 1; m <= 3; ++m) {
        const std::vector<double>& part = *parts[m - 1];
        double sum = 0, momentY = 0, momentX = 0;
        for (std::size_t i = 0; i < part.size(); ++i) {
            const int node = static_cast<int>(i) + 1;
            // The stiffness is symmetric: what a unit plane puts on a node is what the node's column sums up to.
            t_(m, node) = w_(node, m) = part[i];
            sum += part[i];
            momentY += v(node) * part[i];
            momentX += u(node) * part[i];
        }
        g_(m, 1) = sum;
        if (TiltsAlongY(k)) g_(m, 2) = momentY;
        if (TiltsAlongX(k)) g_(m, 3) = momentX;
    }
}

RaftPlane RaftEquilibrium::Solve(const RaftLoad& load, const RaftLoad& carried) const {
    const Single r1 = load.Force - carried.Force;
    const Single r2 = load.MomY - carried.MomY;
    const Single r3 = load.MomX - carried.MomX;
    const auto g = [this](int row, int column) { return static_cast<double>(g_(row, column)); };
    RaftPlane plane;
    switch (k_) {
        case LoadCase::Central:
            plane.c0 = Quotient(r1, g(1, 1));
            break;
        case LoadCase::AlongY: {
            const Single d = g(1, 1) * g(2, 2) - g(2, 1) * g(1, 2);
            plane.c0 = Quotient(r1 * g(2, 2) - r2 * g(1, 2), d);
            plane.cy = Quotient(r2 * g(1, 1) - r1 * g(2, 1), d);
            break;
        }
        case LoadCase::AlongX: {
            const Single d = g(1, 1) * g(3, 3) - g(3, 1) * g(1, 3);
            plane.c0 = Quotient(r1 * g(3, 3) - r3 * g(1, 3), d);
            plane.cx = Quotient(r3 * g(1, 1) - r1 * g(3, 1), d);
            break;
        }
        case LoadCase::BothEccentric: {
            const Column a{g(1, 1), g(2, 1), g(3, 1)}, b{g(1, 2), g(2, 2), g(3, 2)}, c{g(1, 3), g(2, 3), g(3, 3)};
            const Column r{r1, r2, r3};
            const Single d = Determinant(a, b, c);
            plane.c0 = Quotient(Determinant(r, b, c), d);
            plane.cy = Quotient(Determinant(a, r, c), d);
            plane.cx = Quotient(Determinant(a, b, r), d);
            break;
        }
    }
    return plane;
}

void RaftEquilibrium::NodeForces(const RaftPlane& plane, Array<Single>& force) const {
    for (int r = 1; r <= n_; ++r) {
        double f = plane.c0 * w_(r, 1);
        if (TiltsAlongY(k_)) f += plane.cy * w_(r, 2);
        if (TiltsAlongX(k_)) f += plane.cx * w_(r, 3);
        force(r) = f;
    }
}

void PlaneSettlements(const RaftPlane& plane, const Array<Single>& u, const Array<Single>& v,
                      Array<Single>& settlement) {
    for (int i = 1; i <= settlement.Upper(); ++i)
        settlement(i) = ((u(i) * plane.cx + plane.c0) + v(i) * plane.cy) * 100;
}

Single PunchArcSine(Single w) {
    if (w == 1) return PI / 2;
    if (w == -1) return -PI / 2;
    const double square = -w * w + 1;
    // Coordinates are rounded to millimetres, which can carry a node beyond the edge.
    if (square < 0) Fail(FailureKind::InvalidArgument, Text(905000_text));
    return std::atan(Quotient(w, Sqrt(square)));
}

}  // namespace lithmark
