#include "kernels/raft/PolarSymmetry.h"

namespace lithmark {

namespace {

// Each ray of the nodes first..last takes the values of the ray as far behind the axis ray, which ends in node `axis`,
// as it lies before it.
void CopyRays(int axis, int first, int last, int NRing, Array<Single>& values) {
    const int twoRays = 2 * (NRing - 1);
    int source = axis - twoRays;
    int count = 1;
    for (int node = first; node <= last; ++node) {
        ++source;
        values(node) = values(source);
        ++count;
        if (count == NRing) {
            source -= twoRays;
            count = 1;
        }
    }
}

}  // namespace

void MirrorProfile(int N, int K, Array<Single>& values) {
    for (int i = K + 1; i <= N; ++i) values(i) = values(i - K + 1);
    values(K) = values(1);
    for (int i = 1; i <= K - 1; ++i) values(i) = values(N + 1 - i);
}

void CopyBySymmetry(int NHalf, int NQuarter, int NTotal, int NRing, Single Exz, Array<Single>& values) {
    if (Exz == 0) {
        CopyRays(NQuarter, NQuarter + 1, NHalf, NRing, values);
        CopyRays(NHalf, NHalf + 1, NTotal, NRing, values);
    }
    CopyRays(NHalf, NHalf + 1, NTotal, NRing, values);
}

}  // namespace lithmark
