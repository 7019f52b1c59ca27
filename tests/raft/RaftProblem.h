// What the tests of the rafts share: a fresh state record with a raft problem in it, and an independent solver in 64
// bits.
#pragma once

#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

#include "core/Session.h"
#include "kernels/raft/RaftRun.h"
#include "kernels/raft/RectangularMesh.h"

namespace lithmark::tests {

// A raft 5 m by 5 m under 7854 kN on 5 m of soil.
inline RaftInput SquareRaft() {
    RaftInput input;
    input.z = 1;
    input.Q = 7854;
    input.A = 5;
    input.B = 5;
    input.h = 5;
    input.eo = 0.85;
    input.Po = 51.82;
    input.Cc = 0.16;
    input.Es = 5000;
    input.Gamma = 8.69;
    return input;
}

inline RectangularMesh MeshOf(const RaftInput& input, double dx, double dy) {
    Single sizeX = dx, sizeY = dy;
    return BuildRectangularMesh(input.A, input.B, sizeX, sizeY);
}

inline void PrepareNodeArrays(const RectangularMesh& mesh) {
    Session.NodeX = mesh.NodeX;
    Session.NodeY = mesh.NodeY;
    Session.NodeArea = mesh.NodeArea;
    Session.NodeForce.Redim(1, mesh.Nodes());
    Session.NodePressure.Redim(1, mesh.Nodes());
    Session.NodeSettlement.Redim(1, mesh.Nodes());
}

inline double SumOf(const Array<Single>& values) {
    return std::accumulate(values.begin(), values.end(), 0.0, [](double sum, Single v) { return sum + v; });
}
inline double MomentOf(const Array<Single>& distances, const Array<Single>& forces) {
    double sum = 0;
    for (int i = 1; i <= forces.Upper(); ++i) sum += distances(i) * forces(i);
    return sum;
}

// Solves A x = b in 64 bits by elimination with row pivoting; A is row by row and lost.
inline std::vector<double> SolveDense(std::vector<double> a, std::vector<double> b) {
    const std::size_t n = b.size();
    const auto at = [&a, n](std::size_t i, std::size_t j) -> double& { return a[i * n + j]; };
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < n; ++i)
            if (std::abs(at(i, k)) > std::abs(at(pivot, k))) pivot = i;
        for (std::size_t j = 0; j < n; ++j) std::swap(at(k, j), at(pivot, j));
        std::swap(b[k], b[pivot]);
        for (std::size_t i = k + 1; i < n; ++i) {
            const double factor = at(i, k) / at(k, k);
            for (std::size_t j = k; j < n; ++j) at(i, j) -= factor * at(k, j);
            b[i] -= factor * b[k];
        }
    }
    for (std::size_t k = n; k-- > 0;) {
        for (std::size_t j = k + 1; j < n; ++j) b[k] -= at(k, j) * b[j];
        b[k] /= at(k, k);
    }
    return b;
}

// A rigid plate on springs coupled by a flexibility matrix, solved as one system for the node forces and the plane: no
// inverse and no superposition of unit planes takes part.
struct RigidPlate {
    std::vector<double> Force;
    double c0 = 0, cx = 0, cy = 0;
};
inline RigidPlate SolveRigidPlate(const std::vector<double>& flexibility, const std::vector<double>& u,
                                  const std::vector<double>& v, double q, double momX, double momY) {
    const std::size_t n = u.size(), size = n + 3;
    std::vector<double> a(size * size), b(size);
    for (std::size_t r = 0; r < n; ++r) {
        for (std::size_t c = 0; c < n; ++c) a[r * size + c] = flexibility[r * n + c];
        const double plane[] = {1, u[r], v[r]};
        for (std::size_t k = 0; k < 3; ++k) {
            a[r * size + n + k] = -plane[k];
            a[(n + k) * size + r] = plane[k];
        }
    }
    b[n] = q;
    b[n + 1] = momX;
    b[n + 2] = momY;
    const std::vector<double> x = SolveDense(std::move(a), std::move(b));
    return {{x.begin(), x.begin() + static_cast<std::ptrdiff_t>(n)}, x[n], x[n + 1], x[n + 2]};
}

inline std::vector<double> Wide(const Array<Single>& values) {
    return {values.begin(), values.end()};
}

// The flexibility matrix of a mesh from a point influence and the influence of a node on itself, in 64 bits.
template <typename Own, typename Point>
std::vector<double> FlexibilityOf(const RectangularMesh& mesh, const Own& own, const Point& point) {
    const int n = mesh.Nodes();
    std::vector<double> flexibility;
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c)
            flexibility.push_back(
                r == c ? own(r) : point(std::hypot(mesh.NodeX(r) - mesh.NodeX(c), mesh.NodeY(r) - mesh.NodeY(c))));
    return flexibility;
}

}  // namespace lithmark::tests
