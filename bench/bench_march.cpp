// Marching of pore water pressures: 32000 steps, the most that a run takes.
#include <benchmark/benchmark.h>

#include <vector>

#include "core/Session.h"
#include "core/StartSession.h"
#include "kernels/consolidation/BasConsolidationRate.h"
#include "kernels/consolidation/PorePressureMarch.h"
#include "services/texts/LanguageTexts.h"

namespace {

using namespace lithmark;

constexpr int kSteps = 32000;

// Two layers with an interval of 1 m and lambda = 1/6 and 1/12; the interface row has all five weights.
struct TwoLayers {
    explicit TwoLayers(int n) : Rows(0, 2 * n), Old(0, 2 * n) {
        const double upper = 1.0 / 6.0, lower = 1.0 / 12.0;
        for (int m = 1; m < 2 * n; ++m) {
            const double lambda = m < n ? upper : lower;
            Rows(m) = {0, lambda, 1 - 2 * lambda, lambda, 0};
            Old(m) = 100;
        }
        Rows(n) = {upper / 3, (1 - 2 * upper) / 3, (2 * lower + upper) / 3, (1 - 2 * lower) * 2 / 3, 2 * lower / 3};
        Old(0) = Old(2 * n) = 50;
    }
    Array<FivePointRow> Rows;
    Array<Single> Old;
};

void PerNodeAndStep(benchmark::State& state, double nodes) {
    state.counters["node"] =
        benchmark::Counter(nodes * kSteps, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Metres of each layer.
void March(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    const TwoLayers layers(n);
    for (auto _ : state) {
        PorePressureMarch march(layers.Rows, layers.Old);
        march.Advance(kSteps - 1);
        benchmark::DoNotOptimize(march.Values().data());
    }
    PerNodeAndStep(state, 2 * n + 1);
}
BENCHMARK(March)->Arg(10)->Arg(500)->Arg(16383)->Unit(benchmark::kMillisecond);

// The same by the formula as it stands, five weights a node, each term rounded and checked, for comparison.
void PlainProduct(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0)), last = 2 * n;
    const TwoLayers layers(n);
    for (auto _ : state) {
        Array<Single> cur = layers.Old, next(0, last);
        for (int k = 0; k < kSteps; ++k) {
            for (int m = 0; m <= last; ++m) {
                const FivePointRow& row = layers.Rows(m);
                Single sum = 0;
                if (m > 1) sum += row.Cm2 * cur(m - 2);
                if (m > 0) sum += row.Cm1 * cur(m - 1);
                sum += row.C0 * cur(m);
                if (m < last) sum += row.Cp1 * cur(m + 1);
                if (m < last - 1) sum += row.Cp2 * cur(m + 2);
                next(m) = sum;
            }
            std::swap(cur, next);
        }
        benchmark::DoNotOptimize(cur(n));
    }
    PerNodeAndStep(state, last + 1);
}
BENCHMARK(PlainProduct)->Arg(10)->Arg(500)->Unit(benchmark::kMillisecond);

// A whole run with its report, 31 980 steps.
void WholeRun(benchmark::State& state) {
    StartSession();
    const double thickness = static_cast<double>(state.range(0)), day = 86400;
    const Array<Single> h = Array<Single>::Of({thickness, thickness}), Cv = Array<Single>::Of({1e-6, 5e-7}),
                        K = Array<Single>::Of({1, 2});
    const double T = 31980 / (6 * 1e-6 * day);
    for (auto _ : state)
        ComputeConsolidationRate(0, 0, 0, 0, 0, 0, 0, 1, 100, T, 2, h, Cv, K, 1, true, Text(10001_text));
    if (Session.CalcAborted) state.SkipWithError("the run failed");
}
BENCHMARK(WholeRun)->Arg(10)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
