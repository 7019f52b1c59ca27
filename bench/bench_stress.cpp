// Points a second of the stress kernels: the sixteen results of a point alone, and a whole run with its report.
#include <benchmark/benchmark.h>

#include "core/Session.h"
#include "core/StartSession.h"
#include "kernels/stress/BasSoilStress.h"

using namespace lithmark;

namespace {

SoilStressInput Input(int loadType) {
    return {1, 0.5, 2, 7854, 100, 5, 4, 0.25, 5000, loadType};
}

// A point that moves a little each time, so that nothing can be kept from one to the next.
void Points(benchmark::State& state, int loadType, int divisions) {
    StartSession();
    Session.PrefND = divisions;
    SoilStressInput in = Input(loadType);
    Session.A0 = in.A;
    for (auto _ : state) {
        in.x = in.x < 2 ? in.x + 0.001 : 0.001;
        SolveSoilStress(in);
        benchmark::DoNotOptimize(Session.w);
    }
    state.SetItemsProcessed(state.iterations());
}

void RunsWithReport(benchmark::State& state, int loadType) {
    StartSession();
    const SoilStressInput in = Input(loadType);
    for (auto _ : state) {
        ComputeSoilStress(in.x, in.y, in.z, in.Q, in.P, in.A, in.B, in.Nue, in.Es, in.LoadType);
        benchmark::DoNotOptimize(Session.ResultText.data());
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(Points, point_load, 1, 12);
BENCHMARK_CAPTURE(Points, rectangle, 2, 12);
BENCHMARK_CAPTURE(Points, circle_12_divisions, 3, 12);
BENCHMARK_CAPTURE(Points, circle_180_divisions, 3, 180);
BENCHMARK_CAPTURE(RunsWithReport, point_load, 1);
BENCHMARK_CAPTURE(RunsWithReport, rectangle, 2);
BENCHMARK_CAPTURE(RunsWithReport, circle_12_divisions, 3);

}  // namespace
