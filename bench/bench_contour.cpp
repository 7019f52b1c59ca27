// How long the contour plot of a raft takes: the outer boundary of the greatest mesh that can be counted, and the fill
// of a large picture.
#include <benchmark/benchmark.h>

#include "contour/BasContour.h"
#include "contour/RecordingSurface.h"
#include "core/Session.h"

namespace lithmark {
namespace {

// n by m quadrilaterals with values that fall from the middle to the edge.
BasContour Plot(int n, int m) {
    BasContour plot;
    plot.NodeCount = (n + 1) * (m + 1);
    plot.ElementCount = n * m;
    plot.CtrX.Redim(1, plot.NodeCount);
    plot.CtrY.Redim(1, plot.NodeCount);
    plot.CtrZ.Redim(1, plot.NodeCount);
    plot.ElemNodeCount.Redim(1, plot.ElementCount);
    plot.ElemNode.Redim(1, plot.ElementCount, 1, 4);
    plot.ElemNext.Redim(1, plot.ElementCount, 1, 4);
    plot.ZFormat = "0.00";
    const auto node = [&](int i, int j) { return j * (n + 1) + i + 1; };
    for (int j = 0; j <= m; ++j)
        for (int i = 0; i <= n; ++i) {
            const double x = static_cast<double>(i) / n - 0.5, y = static_cast<double>(j) / m - 0.5;
            plot.CtrX(node(i, j)) = 100 * x;
            plot.CtrY(node(i, j)) = 100 * y;
            plot.CtrZ(node(i, j)) = 1 - x * x - y * y;
        }
    int e = 0;
    for (int j = 0; j < m; ++j)
        for (int i = 0; i < n; ++i) {
            plot.ElemNodeCount(++e) = 4;
            plot.ElemNode(e, 1) = node(i + 1, j);
            plot.ElemNode(e, 2) = node(i, j);
            plot.ElemNode(e, 3) = node(i, j + 1);
            plot.ElemNode(e, 4) = node(i + 1, j + 1);
        }
    return plot;
}

void Boundary(benchmark::State& state) {
    BasContour plot = Plot(200, static_cast<int>(state.range(0)) / 200);
    for (auto _ : state) plot.FindBoundary();
    state.counters["elements"] = static_cast<double>(plot.ElementCount);
}

void Fill(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0)), mesh = static_cast<int>(state.range(1));
    BasContour plot = Plot(mesh, mesh);
    plot.FindBoundary();
    plot.ComputeWindow();
    RecordingSurface surface(side, side);
    for (auto _ : state)
        plot.Redraw(surface, {.ColorContours = true, .Displaylines = false, .DrawGrid = false, .DisplayValues = false});
}

void Isolines(benchmark::State& state) {
    const int mesh = static_cast<int>(state.range(0));
    BasContour plot = Plot(mesh, mesh);
    plot.FindBoundary();
    plot.ComputeWindow();
    RecordingSurface surface(1, 1);
    for (auto _ : state)
        plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = true});
}

BENCHMARK(Boundary)->Arg(2000)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill)->Args({1000, 20})->Args({1000, 178})->Args({4000, 20})->Unit(benchmark::kMillisecond);
BENCHMARK(Isolines)->Arg(20)->Arg(178)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lithmark
