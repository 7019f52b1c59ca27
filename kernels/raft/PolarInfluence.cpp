#include "kernels/raft/PolarInfluence.h"

#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/SectorIntegral.h"

namespace lithmark {

namespace {

// SectorIntegral of each ring but the disc; its sector stands for all of the ring.
Array<Single> RingIntegrals(const PolarMesh& mesh, Single z, int kind) {
    Array<Single> integrals(1, mesh.NRing);
    for (int k = 2; k <= mesh.NRing; ++k)
        integrals(k) = SectorIntegral(mesh.RingRadius(k - 1), mesh.RingRadius(k), mesh.dTheta, z, kind);
    return integrals;
}

}  // namespace

Single PolarInfluence::Distance(int t, int i) const {
    return Sqrt(Square(mesh_.NodeX(i) - mesh_.NodeX(t)) + Square(mesh_.NodeY(i) - mesh_.NodeY(t)));
}

Single PolarInfluence::UnitForce(int t, int i) const {
    return t == i ? Own(RingOf(mesh_, i), Quotient(1, mesh_.NodeArea(i))) : Point(t, i);
}

HalfSpaceInfluence::HalfSpaceInfluence(const PolarMesh& mesh, Single nu, Single Es)
    : PolarInfluence(mesh), nu_(nu), Es_(Es), surface_(RingIntegrals(mesh, 0, 2)) {}

double HalfSpaceInfluence::Own(int k, double pressure) const {
    const double stiff = 1 - Square(nu_);
    if (k == 1) return Quotient(2 * pressure * stiff * Mesh().RingRadius(1), Es_);
    return Quotient(2 * pressure * stiff * surface_(k), Es_) / PI;
}

double HalfSpaceInfluence::Point(int t, int i) const {
    const double c0 = (1 - nu_) + (1 - nu_);
    return Quotient((1 + nu_) * Quotient(c0, Distance(t, i)), 2 * PI * Es_);
}

LayerInfluence::LayerInfluence(const PolarMesh& mesh, Single nu, Single Es, Single h)
    : HalfSpaceInfluence(mesh, nu, Es),
      h_(h),
      c0_((1 - nu) + (1 - nu)),
      deep3_(RingIntegrals(mesh, h, 3)),
      deep4_(RingIntegrals(mesh, h, 4)) {}

double LayerInfluence::Own(int k, double pressure) const {
    const double onHalfSpace = HalfSpaceInfluence::Own(k, pressure);
    if (k == 1) {
        const Single S = Sqrt(Square(h_) + Square(Mesh().RingRadius(1)));
        const Single t = c0_ * (S - h_) - h_ * (Quotient(h_, S) - 1);
        return onHalfSpace - Quotient(pressure * (1 + nu_) * t, Es_);
    }
    return onHalfSpace - Quotient(pressure * (c0_ * deep3_(k) + Square(h_) * (1 + nu_) * deep4_(k)), Es_ * PI);
}

double LayerInfluence::Point(int t, int i) const {
    const Single d = Distance(t, i);
    const Single S = Sqrt(Square(h_) + Square(d));
    const double atDepth = Quotient(Square(h_), Cube(S));
    return Quotient((1 + nu_) * ((Quotient(c0_, d) - Quotient(c0_, S)) - atDepth), 2 * PI * Es_);
}

MeanStressInfluence::MeanStressInfluence(const PolarMesh& mesh, Single z1, Single z2)
    : PolarInfluence(mesh), z1_(z1), z2_(z2), factor_(static_cast<std::size_t>(mesh.NRing)) {}

double MeanStressInfluence::Own(int k, double pressure) const {
    auto& factor = factor_[static_cast<std::size_t>(k - 1)];
    const auto& radius = Mesh().RingRadius;
    if (!factor)
        factor = k == 1 ? MeanCircleAxisFactor(radius(1), z1_, z2_)
                        : MeanSectorFactor(radius(k - 1), radius(k), Mesh().dTheta, z1_, z2_);
    return pressure * *factor;
}

double MeanStressInfluence::Point(int t, int i) const {
    const PolarMesh& mesh = Mesh();
    return MeanPointFactor(mesh.NodeX(t) - mesh.NodeX(i), mesh.NodeY(t) - mesh.NodeY(i), z1_, z2_);
}

Single SumOfForces(const PolarInfluence& influence, int t, const Array<Single>& force, double scale) {
    const PolarMesh& mesh = influence.Mesh();
    Single sum;
    for (int i = 1; i <= mesh.NTotal; ++i)
        sum += (i == t ? influence.Own(RingOf(mesh, i), Quotient(force(i), mesh.NodeArea(i)))
                       : influence.Point(t, i) * force(i)) *
               scale;
    return sum;
}

Single SumOfUnitForces(const PolarInfluence& influence, int t, const Array<Single>& force) {
    Single sum;
    for (int i = 1; i <= influence.Mesh().NTotal; ++i) sum += influence.UnitForce(t, i) * force(i);
    return sum;
}

Single SumOfPressure(const PolarInfluence& influence, int t, double pressure) {
    const PolarMesh& mesh = influence.Mesh();
    Single sum;
    for (int i = 1; i <= mesh.NTotal; ++i)
        sum +=
            i == t ? influence.Own(RingOf(mesh, i), pressure) : influence.Point(t, i) * (pressure * mesh.NodeArea(i));
    return sum;
}

}  // namespace lithmark
