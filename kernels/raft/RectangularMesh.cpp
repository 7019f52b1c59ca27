#include "kernels/raft/RectangularMesh.h"

#include "base/NumberText.h"
#include "kernels/raft/GridElements.h"

namespace lithmark {

namespace {

// Number of intervals of a side: the nearest whole number of element sizes, made even. The size becomes the real one.
Integer Divide(Single side, Single& size) {
    Integer count = Integer::Rounded(Quotient(side, size));
    if (count % 2 != 0) count += 1;
    size = Quotient(side, count);
    return count;
}

// Coordinates of the grid lines as texts, and as the numbers that these texts hold. Deliberate: three decimals, so that
// the run and the texts of the export files are of one mesh.
void DrawLines(int intervals, Single size, Array<std::string>& texts, Array<Single>& lines) {
    texts.Redim(1, intervals + 1);
    lines.Redim(1, intervals + 1);
    for (int i = 1; i <= intervals + 1; ++i) {
        texts(i) = FormatNumber((i - 1) * size, "0.000");
        lines(i) = ParseNumber(texts(i)).value();
    }
}

}  // namespace

RectangularMesh BuildRectangularMesh(Single a, Single b, Single& dx, Single& dy) {
    RectangularMesh mesh;
    mesh.HalfA = a / 2;
    mesh.HalfB = b / 2;
    mesh.nx = Divide(a, dx);
    mesh.ny = Divide(b, dy);
    if (mesh.nx < 0 || mesh.ny < 0) Fail(FailureKind::SubscriptRange);
    const Integer n = static_cast<long>(mesh.Columns()) * mesh.Rows();
    DrawLines(mesh.nx, dx, mesh.GridX, mesh.LineX);
    DrawLines(mesh.ny, dy, mesh.GridY, mesh.LineY);
    mesh.ElemHalfX = dx / 2;
    mesh.ElemHalfY = dy / 2;

    mesh.NodeX.Redim(1, n);
    mesh.NodeY.Redim(1, n);
    mesh.NodeArea.Redim(1, n);
    mesh.NodeElems.Redim(1, n);
    mesh.NodeRow.Redim(1, n);
    mesh.NodeCol.Redim(1, n);
    mesh.u.Redim(1, n);
    mesh.v.Redim(1, n);
    Matrix<Integer> active(mesh.Columns(), mesh.Rows()), nodeNo(mesh.Columns(), mesh.Rows());
    for (int j = 1; j <= mesh.Rows(); ++j) {
        for (int i = 1; i <= mesh.Columns(); ++i) {
            const int node = mesh.Node(i, j);
            nodeNo(i, j) = node;
            active(i, j) = 1;
            mesh.NodeX(node) = mesh.LineX(i);
            mesh.NodeY(node) = mesh.LineY(j);
            mesh.NodeRow(node) = j;
            mesh.NodeCol(node) = i;
            mesh.u(node) = mesh.NodeX(node) - mesh.HalfA;
            mesh.v(node) = mesh.NodeY(node) - mesh.HalfB;
        }
    }

    Integer elements;
    Array<Integer> n1, n2, n3, n4;
    BuildGridElements(elements, mesh.nx, mesh.ny, active, nodeNo, n1, n2, n3, n4);
    mesh.Elements.reserve(static_cast<std::size_t>(elements));
    for (int e = 1; e <= elements; ++e) {
        mesh.Elements.push_back({4, {n1(e), n2(e), n3(e), n4(e)}});
        const int i = mesh.NodeCol(n1(e)), j = mesh.NodeRow(n1(e));
        const Single sideX = mesh.NodeX(nodeNo(i + 1, j)) - mesh.NodeX(nodeNo(i, j));
        const Single sideY = mesh.NodeY(nodeNo(i, j + 1)) - mesh.NodeY(nodeNo(i, j));
        for (const int corner : mesh.Elements.back().Nodes) {
            mesh.NodeArea(corner) += sideX * sideY / 4;
            ++mesh.NodeElems(corner);
        }
    }
    return mesh;
}

}  // namespace lithmark
