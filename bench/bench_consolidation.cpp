// Consolidation settlement by sublayers under a circle, off its axis: sublayers times nodes of the mesh.
#include <benchmark/benchmark.h>

#include "core/Session.h"
#include "core/StartSession.h"
#include "kernels/consolidation/BasConsolidation.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/SectorIntegral.h"

namespace {

using namespace lithmark;

// 200 sublayers of 0.25 m.
void CircleInSublayers(benchmark::State& state) {
    StartSession();
    Session.PrefND = static_cast<int>(state.range(0));
    Session.A0 = 5;
    const ConsolidationInput in{.x = 1,
                                .y = 0.3,
                                .z = 2,
                                .Q = 0,
                                .P = 100,
                                .A = 5,
                                .B = 0,
                                .h = 50,
                                .eo = 0.8,
                                .Po = 30,
                                .Gamma = 9,
                                .Cc = 0.2,
                                .Es = 0,
                                .LoadType = 3,
                                .SoilPropertyType = 2};
    for (auto _ : state) SolveConsolidation(in);
}
BENCHMARK(CircleInSublayers)->Arg(12)->Arg(24)->Arg(100)->Unit(benchmark::kMillisecond);

// The innermost calls of the rafts.
void PointFactor(benchmark::State& state) {
    Single x = 3;
    for (auto _ : state) benchmark::DoNotOptimize(x = 3 + MeanPointFactor(x, 1.5, 2, 4));
}
BENCHMARK(PointFactor);

void CornerFactor(benchmark::State& state) {
    Single a = 0.25;
    for (auto _ : state) benchmark::DoNotOptimize(a = 0.25 + MeanCornerFactor(a, 0.25, 2, 4));
}
BENCHMARK(CornerFactor);

void SectorFactor(benchmark::State& state) {
    Single r = 2;
    for (auto _ : state) benchmark::DoNotOptimize(r = 2 + MeanSectorFactor(r, 3, 0.26, 2, 4));
}
BENCHMARK(SectorFactor);

}  // namespace
