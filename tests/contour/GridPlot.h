// A raft's mesh with values that a test chooses, instead of the files of a run.
#pragma once

#include <functional>

#include "contour/BasContour.h"

namespace lithmark::tests {

using Field = std::function<double(double, double)>;

// A grid of nx by ny quadrilaterals over 0..a by 0..b with nodal values of `field`.
inline BasContour GridPlot(int nx, int ny, double a, double b, const Field& field) {
    BasContour plot;
    plot.NodeCount = (nx + 1) * (ny + 1);
    plot.ElementCount = nx * ny;
    plot.CtrX.Redim(1, plot.NodeCount);
    plot.CtrY.Redim(1, plot.NodeCount);
    plot.CtrZ.Redim(1, plot.NodeCount);
    plot.ElemNodeCount.Redim(1, plot.ElementCount);
    plot.ElemNode.Redim(1, plot.ElementCount, 1, 4);
    plot.ElemNext.Redim(1, plot.ElementCount, 1, 4);
    const auto node = [&](int i, int j) { return j * (nx + 1) + i + 1; };
    for (int j = 0; j <= ny; ++j)
        for (int i = 0; i <= nx; ++i) {
            plot.CtrX(node(i, j)) = a * i / nx;
            plot.CtrY(node(i, j)) = b * j / ny;
            plot.CtrZ(node(i, j)) = field(a * i / nx, b * j / ny);
        }
    int e = 0;
    for (int j = 0; j < ny; ++j)
        for (int i = 0; i < nx; ++i) {
            ++e;
            plot.ElemNodeCount(e) = 4;
            const int corners[] = {node(i + 1, j), node(i, j), node(i, j + 1), node(i + 1, j + 1)};
            for (int k = 0; k < 4; ++k) plot.ElemNode(e, k + 1) = corners[k];
        }
    plot.ZFormat = "0.00";
    plot.FindBoundary();
    plot.ComputeWindow();
    return plot;
}

}  // namespace lithmark::tests
