#include "kernels/raft/PlotElements.h"

#include "base/Failure.h"

namespace lithmark {

std::vector<RaftElement> PlotElements(const PolarMesh& mesh) {
    std::vector<RaftElement> elements;
    elements.reserve(static_cast<std::size_t>(mesh.NTotal));
    const int rays = 2 * mesh.ND;
    const int perRay = mesh.NRing - 1;
    for (int m = 1; m <= rays; ++m) {
        const int a = 2 + (m - 1) * perRay;
        const int b = m == rays ? 2 : a + perRay;
        if (a + perRay - 1 > mesh.NTotal) Fail(FailureKind::SubscriptRange);
        elements.push_back({3, {1, a, b, 0}});
        for (int k = 0; k < perRay - 1; ++k) elements.push_back({4, {a + k, a + k + 1, b + k, b + k + 1}});
    }
    return elements;
}

}  // namespace lithmark
