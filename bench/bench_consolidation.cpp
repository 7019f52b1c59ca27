// Consolidation settlement by sublayers under a circle, off its axis: sublayers times nodes of the mesh.
#include <benchmark/benchmark.h>

#include <array>

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

// The innermost calls of the rafts, one after the other at places of which none waits for another.
template <typename Factor>
void Factors(benchmark::State& state, const Factor& factor) {
    constexpr int kPlaces = 512;
    std::array<Single, kPlaces> places;
    for (int i = 0; i < kPlaces; ++i) places[static_cast<std::size_t>(i)] = 0.25 + i * 0.01;
    for (auto _ : state)
        for (const Single place : places) benchmark::DoNotOptimize(factor(place));
    state.SetItemsProcessed(state.iterations() * kPlaces);
}

void PointFactor(benchmark::State& state) {
    Factors(state, [](Single x) { return MeanPointFactor(x, 1.5, 2, 4); });
}
void CornerFactor(benchmark::State& state) {
    Factors(state, [](Single a) { return MeanCornerFactor(a, 0.25, 2, 4); });
}
void SectorFactor(benchmark::State& state) {
    Factors(state, [](Single r) { return MeanSectorFactor(r, r + 1, 0.26, 2, 4); });
}
BENCHMARK(PointFactor);
BENCHMARK(CornerFactor);
BENCHMARK(SectorFactor);

}  // namespace
