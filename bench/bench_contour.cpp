// How long the contour plot of a raft takes: the outer boundary of the greatest mesh that can be counted, and the fill
// of a large picture.
#include <benchmark/benchmark.h>

#include "contour/BasContour.h"
#include "contour/RecordingSurface.h"
#include "core/Session.h"
#include "tests/contour/GridPlot.h"

namespace lithmark {
namespace {

// n by m quadrilaterals with values that fall from the middle to the edge.
BasContour Plot(int n, int m) {
    return tests::GridPlot(n, m, 100, 100, [](double x, double y) {
        const double u = x / 100 - 0.5, v = y / 100 - 0.5;
        return 1 - u * u - v * v;
    });
}

void Boundary(benchmark::State& state) {
    BasContour plot = Plot(200, static_cast<int>(state.range(0)) / 200);
    for (auto _ : state) plot.FindBoundary();
    state.counters["elements"] = static_cast<double>(plot.ElementCount);
}

void Fill(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0)), mesh = static_cast<int>(state.range(1));
    BasContour plot = Plot(mesh, mesh);
    RecordingSurface surface(side, side);
    for (auto _ : state)
        plot.Redraw(surface, {.ColorContours = true, .Displaylines = false, .DrawGrid = false, .DisplayValues = false});
}

void Isolines(benchmark::State& state) {
    const int mesh = static_cast<int>(state.range(0));
    BasContour plot = Plot(mesh, mesh);
    RecordingSurface surface(1, 1);
    for (auto _ : state)
        plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = true});
}

BENCHMARK(Boundary)->Arg(2000)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill)->Args({1000, 20})->Args({1000, 178})->Args({4000, 20})->Unit(benchmark::kMillisecond);
BENCHMARK(Isolines)->Arg(20)->Arg(178)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lithmark
