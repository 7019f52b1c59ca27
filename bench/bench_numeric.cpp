// The operations whose time grows with the square and the cube of a raft's nodes.
#include <benchmark/benchmark.h>

#include <cmath>

#include "services/numerics/NumericLib.h"

namespace {

using namespace lithmark;

// Settlements of a square grid of nodes half a metre apart under unit loads on a layer of 5 m.
Matrix<Single> Flexibility(int n) {
    const int width = static_cast<int>(std::lround(std::sqrt(n)));
    Matrix<Single> f(n, n);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const double d = 0.5 * std::hypot(i % width - j % width, i / width - j / width);
            f(i + 1, j + 1) = (i == j ? 8.96 : 1 / d) - 1 / std::hypot(d, 5);
        }
    }
    return f;
}

// Rafts of 5, 10, 20 and 40 m square with nodes 0.5 m apart.
void Invert(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const Matrix<Single> f = Flexibility(n);
    Matrix<Single> inverse;
    for (auto _ : state) NumericLib::Invert(n, f, inverse);
    state.counters["flops"] = benchmark::Counter(2.0 * n * n * n, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(Invert)->Arg(121)->Arg(441)->Arg(1681)->Arg(6561)->Unit(benchmark::kMillisecond)->UseRealTime();

void MatVec(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const Matrix<Single> f = Flexibility(n);
    Array<Single> x(1, n), y;
    for (Single& item : x) item = 1;
    for (auto _ : state) NumericLib::MatVec(n, f, x, y);
}
BENCHMARK(MatVec)->Arg(121)->Arg(441)->Arg(1681)->Arg(6561)->Unit(benchmark::kMicrosecond);

}  // namespace
