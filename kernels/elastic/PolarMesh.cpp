#include "kernels/elastic/PolarMesh.h"

namespace lithmark {

namespace {

void CountNodes(PolarMesh& mesh) {
    const double nd = mesh.ND;
    mesh.NTotal = Integer::Rounded(Square(nd) + 1);
    mesh.NRing = Integer::Rounded(nd / 2 + 1);
    mesh.NHalf = Integer::Rounded((mesh.NTotal + nd + 1) / 2);
    mesh.NQuarter = Integer::Rounded((mesh.NTotal + 2 * nd + 3) / 4);
}

// Rings of equal area, from the middle outward; the last one ends at R exactly.
void BuildRings(PolarMesh& mesh) {
    const int last = mesh.NRing;
    mesh.RingRadius.Redim(1, last);
    mesh.RingWidth.Redim(1, last);
    mesh.RingArea.Redim(1, last);
    auto& radius = mesh.RingRadius;
    const auto sectorArea = [&](int k) {
        return Quotient((Square(radius(k)) - Square(radius(k - 1))) * PI / 2, mesh.ND);
    };

    mesh.RingArea(1) = Quotient(PI * Square(mesh.R), last);
    mesh.RingWidth(1) = Sqrt(mesh.RingArea(1) / PI);
    radius(1) = mesh.RingWidth(1);
    for (int k = 2; k < last; ++k) {
        mesh.RingWidth(k) = Sqrt(Square(radius(k - 1)) + mesh.RingArea(1) / PI) - radius(k - 1);
        radius(k) = radius(k - 1) + mesh.RingWidth(k);
        mesh.RingArea(k) = sectorArea(k);
    }
    mesh.RingWidth(last) = mesh.R - radius(last - 1);
    radius(last) = mesh.R;
    mesh.RingArea(last) = sectorArea(last);
}

void BuildNodes(PolarMesh& mesh) {
    const int n = mesh.NTotal;
    for (Array<Single>* values : {&mesh.NodeX, &mesh.NodeY, &mesh.NodeRadius, &mesh.NodeArea, &mesh.NodeInner,
                                  &mesh.NodeOuter, &mesh.NodeTheta1, &mesh.NodeTheta2})
        values->Redim(1, n);
    mesh.NodeRay.Redim(1, n);

    mesh.NodeOuter(1) = mesh.RingRadius(1);
    mesh.NodeArea(1) = mesh.RingArea(1);
    mesh.NodeTheta2(1) = 2 * PI;
    mesh.NodeRay(1) = 1;

    int k = 1;
    int ray = 1;
    Single angle = 0;
    for (int i = 2; i <= n; ++i) {
        ++k;
        mesh.NodeTheta1(i) = angle - mesh.dTheta / 2;
        mesh.NodeTheta2(i) = mesh.dTheta / 2 + angle;
        mesh.NodeRay(i) = ray;
        const Single inner = mesh.RingRadius(k - 1);
        const Single outer = mesh.RingRadius(k);
        mesh.NodeInner(i) = inner;
        mesh.NodeOuter(i) = outer;
        mesh.NodeArea(i) = mesh.RingArea(k);
        const double cubes = Cube(outer) - Cube(inner);
        const Single centroid = Quotient(cubes + cubes, Square(outer) - Square(inner)) / 3;
        mesh.NodeX(i) = centroid * std::cos(angle);
        mesh.NodeY(i) = centroid * std::sin(angle);
        mesh.NodeRadius(i) = Sqrt(Square(mesh.NodeY(i)) + Square(mesh.NodeX(i)));
        if (k == mesh.NRing) {
            k = 1;
            angle = angle + mesh.dTheta;
            ++ray;
            if (ray > mesh.ND) ray = 1;
        }
    }
}

}  // namespace

PolarMesh BuildPolarMesh(Integer nd, Single radius) {
    PolarMesh mesh;
    mesh.ND = nd;
    mesh.R = radius;
    CountNodes(mesh);
    mesh.dTheta = Quotient(PI, nd);
    BuildRings(mesh);
    BuildNodes(mesh);
    return mesh;
}

}  // namespace lithmark
