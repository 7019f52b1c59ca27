#include "kernels/raft/PolarSystem.h"

namespace lithmark {

namespace {

// Walks the columns of one ray after another backward: from the first node of the ray that ends at node `last`,
// outward, then the ray before it, and so on. Gives the node that mirrors the next node of rays counted forward.
class MirrorWalk {
  public:
    MirrorWalk(const PolarMesh& mesh, int start) : ringCount_(mesh.NRing), node_(start) {}
    int Next() {
        if (count_ == ringCount_) {
            node_ -= 2 * (ringCount_ - 1);
            count_ = 1;
        }
        ++count_;
        return ++node_;
    }

  private:
    int ringCount_, node_, count_ = 1;
};

// Entries of the half's matrix. Columns on the x axis are those of the full matrix; to each other column that of its
// mirror image beyond the axis is added.
class HalfMatrix {
  public:
    explicit HalfMatrix(const PolarFlexibility& flexibility) : full_(flexibility) {
        const PolarMesh& mesh = full_.Mesh();
        known_.Redim(1, mesh.NHalf);
        mirror_.Redim(1, mesh.NHalf);
        for (int c = 1; c <= mesh.NRing; ++c) known_(c) = true;
        for (int c = mesh.NHalf - mesh.NRing + 2; c <= mesh.NHalf; ++c) known_(c) = true;
        MirrorWalk walk(mesh, mesh.NHalf - 2 * (mesh.NRing - 1));
        for (int c = mesh.NHalf + 1; c <= mesh.NTotal; ++c) {
            const int p = walk.Next();
            known_(p) = true;
            mirror_(p) = c;
        }
    }

    // A column that no fold reaches, which only an odd ND leaves, is 0.
    Single operator()(int b, int c) const {
        if (mirror_(c) != 0) return full_(b, mirror_(c)) + full_(b, c);
        return known_(c) ? full_(b, c) : Single(0);
    }

  private:
    const PolarFlexibility& full_;
    Array<char> known_;
    Array<Integer> mirror_;  // 0: none
};

Matrix<Single> FoldToHalf(const PolarFlexibility& flexibility) {
    const HalfMatrix half(flexibility);
    const int n = flexibility.Mesh().NHalf;
    Matrix<Single> H(n, n);
    for (int b = 1; b <= n; ++b)
        for (int c = 1; c <= n; ++c) H(b, c) = half(b, c);
    return H;
}

Matrix<Single> FoldToQuarter(const PolarFlexibility& flexibility) {
    const PolarMesh& mesh = flexibility.Mesh();
    const HalfMatrix half(flexibility);
    const int n = mesh.NQuarter;
    Matrix<Single> U(n, n);
    for (int b = 1; b <= n; ++b) {
        U(b, 1) = half(b, 1);
        for (int c = n - mesh.NRing + 2; c <= n; ++c) U(b, c) = half(b, c);
        MirrorWalk walk(mesh, mesh.NHalf - mesh.NRing + 1);
        for (int c = 2; c <= n - mesh.NRing + 1; ++c) U(b, c) = half(b, c) + half(b, walk.Next());
    }
    return U;
}

}  // namespace

void PolarFlexibility::Add(double factor, const PolarInfluence& influence,
                           const std::function<void(double)>& progress) {
    for (int c = 1; c <= mesh_.NRing; ++c) {
        for (int r = 1; r <= mesh_.NTotal; ++r) firstRay_(r, c) += factor * influence.UnitForce(r, c);
        progress(static_cast<double>(c) / mesh_.NRing);
    }
}

Single PolarFlexibility::operator()(int r, int c) const {
    if (c <= mesh_.NRing) return firstRay_(r, c);
    const int p = RingOf(mesh_, c);
    if (r == 1) return firstRay_(1, p);
    // Turned back by as many nodes as lie between c and its place on the first ray.
    const int a = r - (c - p);
    return firstRay_(a >= 2 ? a : a + mesh_.NTotal - 1, p);
}

int FoldedSize(const PolarMesh& mesh, LoadCase k) {
    return TiltsAlongX(k) ? mesh.NHalf : mesh.NQuarter;
}

Array<Single> FoldedWeights(const PolarMesh& mesh, LoadCase k) {
    const int n = FoldedSize(mesh, k);
    Array<Single> weight(1, n);
    for (int r = 1; r <= n; ++r) {
        const int ray = mesh.NodeRay(r);
        if (TiltsAlongX(k)) {
            weight(r) = ray == 1 ? 1 : 2;
        } else {
            weight(r) = ray == 1 || ray == mesh.NRing ? 2 : 4;
            if (r == 1) weight(r) = 1;
        }
    }
    return weight;
}

Matrix<Single> FoldFlexibility(const PolarFlexibility& flexibility, LoadCase k) {
    return TiltsAlongX(k) ? FoldToHalf(flexibility) : FoldToQuarter(flexibility);
}

}  // namespace lithmark
