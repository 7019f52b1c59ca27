// What a load on one sector of a circular raft does to the nodes of the mesh.
//
// - The sector that holds the node looked at is uniformly loaded and integrated over; any other sector acts as a point
//   load at its node.
// - The soil is elastic, homogeneous and isotropic; the raft is smooth and lies on its surface.
// - By the rotation of the mesh the own terms of all nodes of a ring are one, so they are worked out once per ring.
#pragma once

#include <optional>
#include <vector>

#include "base/Array.h"
#include "base/Single.h"
#include "kernels/elastic/PolarMesh.h"

namespace lithmark {

class PolarInfluence {
  public:
    explicit PolarInfluence(const PolarMesh& mesh) : mesh_(mesh) {}
    virtual ~PolarInfluence() = default;

    // On a node of ring k from a uniform pressure on its own sector (the disc for ring 1).
    virtual double Own(int k, double pressure) const = 0;
    // On node t from a unit force at another node i. DivisionByZero when the two stand on one point.
    virtual double Point(int t, int i) const = 0;

    // On node t from a unit force at node i, which may be t.
    Single UnitForce(int t, int i) const;

    const PolarMesh& Mesh() const noexcept { return mesh_; }

  protected:
    // The distance of two nodes, m.
    Single Distance(int t, int i) const;

  private:
    const PolarMesh& mesh_;
};

// The ring that a node lies on: 1 for the centre.
inline int RingOf(const PolarMesh& mesh, int node) {
    // A mesh with nodes beside the centre has two rings at least.
    // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
    return node == 1 ? 1 : 2 + (node - 2) % (mesh.NRing - 1);
}

// Settlement [m] of the surface of a half-space (Boussinesq, 1885), with modulus Es [kN/m2].
class HalfSpaceInfluence : public PolarInfluence {
  public:
    HalfSpaceInfluence(const PolarMesh& mesh, Single nu, Single Es);
    double Own(int k, double pressure) const override;
    double Point(int t, int i) const override;

  protected:
    Single nu_, Es_;

  private:
    Array<Single> surface_;  // per ring: the integral of r/D^(1/2) over half a sector
};

// Settlement [m] of the surface of a layer of thickness h: that of the half-space less what the same load does at the
// depth h below.
class LayerInfluence : public HalfSpaceInfluence {
  public:
    LayerInfluence(const PolarMesh& mesh, Single nu, Single Es, Single h);
    // Deliberate: no factor (1 + nu) on the first integral at depth h of a sector, though the disc has it; the sectors'
    // own terms are a little high for nu > 0.
    double Own(int k, double pressure) const override;
    double Point(int t, int i) const override;

  private:
    Single h_, c0_;
    Array<Single> deep3_, deep4_;  // per ring: the integrals of r/(D + h^2)^(1/2) and r/(D + h^2)^(3/2)
};

// Mean vertical stress [kN/m2] between two depths z1 < z2 [m] below a node of a half-space.
class MeanStressInfluence : public PolarInfluence {
  public:
    MeanStressInfluence(const PolarMesh& mesh, Single z1, Single z2);
    double Own(int k, double pressure) const override;
    double Point(int t, int i) const override;

  private:
    Single z1_, z2_;
    mutable std::vector<std::optional<Single>> factor_;  // per ring: factor of the own term, worked out at first use
};

// What forces on all nodes do to node t, times `scale`: a Single accumulated in node order. The own term is that of the
// pressure force/area.
Single SumOfForces(const PolarInfluence& influence, int t, const Array<Single>& force, double scale = 1);
// The same by the stored influences of unit forces, as the flexibility has them.
Single SumOfUnitForces(const PolarInfluence& influence, int t, const Array<Single>& force);
// What a uniform pressure on the whole raft does to node t, in the same way.
Single SumOfPressure(const PolarInfluence& influence, int t, double pressure);

}  // namespace lithmark
