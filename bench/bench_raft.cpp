// How long the parts of a raft's run take, and how much memory the whole takes.
//
// A rectangle's argument is the number of nodes along one side, always odd: 11 (121 nodes), 21 (441), 41 (1681), 81
// (6561), 181 (32 761, the most). From 2601 nodes on the operator solves; `by_inverse` is the same soil a millionth of
// a millimetre below the surface, where the inverse does. A circle's argument is its number of divisions: 12 (145
// nodes), 24 (577), 48 (2305), 72 (5185). `peak_MB` is the peak of a process of its own that does nothing but the run,
// less what such a process takes before it; `of_matrices` sets it against two matrices of n by n.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "kernels/raft/BasRectangularRigidRaft.h"
#include "kernels/raft/CircularPunch.h"
#include "kernels/raft/PolarStressSums.h"
#include "kernels/raft/RectangularInfluence.h"
#include "kernels/raft/RectangularNumerical.h"
#include "services/numerics/NumericLib.h"

namespace lithmark {
namespace {

enum Kind { kElastic, kUniformClay, kThinClay, kThickClay, kPunch, kPunchOnClay };

// 10 m by 10 m under 20 MN with both eccentricities; the soil 8 m thick, as clay by Cc 5 m (thin) or 40 m (six
// sublayers).
void SetProblem(int side, Kind kind) {
    ResetSession();
    Session.ProblemType = kind == kElastic || kind == kPunch ? 9 : 10;
    Session.LoadType = 2;
    Session.Q = 20000;
    Session.A = Session.B = 10;
    Session.h = kind == kThickClay ? 40 : kind == kThinClay ? 5 : 8;
    Session.Es = 5000;
    Session.Nue = 0.25;
    Session.Cc = 0.16;
    Session.eo = 0.85;
    Session.Po = 51.82;
    Session.Gamma = 8.69;
    Session.SoilPropertyType = kind == kThinClay || kind == kThickClay || kind == kPunchOnClay ? 2 : 1;
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.25;
    Session.AnalysisType = kind == kPunch || kind == kPunchOnClay;
    Session.PrefDx = Session.PrefDy = 10.0 / (side - 1);
    static const std::string dir = (std::filesystem::temp_directory_path() / "lithmark-bench").string();
    std::filesystem::create_directories(dir);
    Session.WorkDir = dir + "/";
    Session.WorkName = "bench";
}

// A circle of 5 m radius on the same soils.
void SetCircle(int divisions, Kind kind) {
    SetProblem(11, kind);
    Session.LoadType = LoadShape::Circle;
    Session.A = 5;
    Session.Exz_y = 0;
    Session.PrefND = divisions;
}

void Run() {
    SessionRecord& s = Session;
    if (s.LoadType == LoadShape::Circle)
        ComputeCircularRaft(s.z, s.Q, s.A, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Gamma,
                            s.AnalysisType, s.SettlementAt);
    else
        ComputeRectangularRaft(s.z, s.Q, s.A, s.B, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Exz_y,
                               s.Gamma, s.AnalysisType, s.SettlementAt);
}

void CountNodes(benchmark::State& state) {
    state.counters["nodes"] = static_cast<double>(state.range(0) * state.range(0));
}

Matrix<Single> ElasticFlexibility(const RectangularMesh& mesh) {
    const Grid grid(mesh);
    Array<Single> diagonal(1, mesh.Nodes());
    for (int r = 1; r <= mesh.Nodes(); ++r)
        diagonal(r) = mesh.NodeElems(r) / mesh.NodeArea(r) *
                      RectCornerLayer(mesh.ElemHalfX, mesh.ElemHalfY, Session.h, Session.Nue) / Session.Es;
    OffsetFactors factors(
        grid, [](Single dx, Single dy) -> Single { return PointLayer(dx, dy, Session.h, Session.Nue) / Session.Es; },
        false);
    Matrix<Single> matrix;
    FillFlexibility(grid, factors, diagonal, matrix);
    return matrix;
}

void MeshAndFlexibility(benchmark::State& state) {
    for (auto _ : state) {
        SetProblem(static_cast<int>(state.range(0)), kElastic);
        const RectangularMesh mesh = BuildRectangularMesh(Session.A, Session.B, Session.PrefDx, Session.PrefDy);
        benchmark::DoNotOptimize(ElasticFlexibility(mesh));
    }
    CountNodes(state);
}

void Inverse(benchmark::State& state) {
    SetProblem(static_cast<int>(state.range(0)), kElastic);
    const RectangularMesh mesh = BuildRectangularMesh(Session.A, Session.B, Session.PrefDx, Session.PrefDy);
    const Matrix<Single> flexibility = ElasticFlexibility(mesh);
    for (auto _ : state) {
        Matrix<Single> inverse;
        NumericLib::Invert(mesh.Nodes(), flexibility, inverse);
        benchmark::DoNotOptimize(inverse);
    }
    CountNodes(state);
}

void WholeRun(benchmark::State& state, Kind kind, double z = 0) {
    for (auto _ : state) {
        SetProblem(static_cast<int>(state.range(0)), kind);
        Session.z = z;
        Run();
        if (Session.CalcAborted) return state.SkipWithError("the run failed");
    }
    CountNodes(state);
}

void CircleRun(benchmark::State& state, Kind kind) {
    for (auto _ : state) {
        SetCircle(static_cast<int>(state.range(0)), kind);
        Run();
        if (Session.CalcAborted) return state.SkipWithError("the run failed");
    }
    state.counters["nodes"] = static_cast<double>(state.range(0) * state.range(0) + 1);
}

// One pass of the iteration for thick clay: the stresses in 40 m of clay, eight sublayers, below the half of a tilted
// circle.
struct Pass {
    explicit Pass(int divisions)
        : Mesh(BuildPolarMesh(divisions, 5)), Force(PunchContactForces(Mesh, 20000, 0.5).NodeForce) {
        for (int k = 0; k < 8; ++k) {
            Layers.push_back({k * 5.0, k * 5.0 + 5});
            Influence.emplace_back(Mesh, k * 5.0, k * 5.0 + 5);
        }
    }
    PolarMesh Mesh;
    Array<Single> Force;
    std::vector<StressInterval> Layers;
    std::vector<MeanStressInfluence> Influence;
};

void CountFactors(benchmark::State& state, const Pass& pass) {
    state.counters["factors"] = benchmark::Counter(
        static_cast<double>(pass.Mesh.NHalf) * pass.Mesh.NTotal * static_cast<double>(pass.Layers.size()),
        benchmark::Counter::kIsIterationInvariantRate);
}

void CircleStressOneByOne(benchmark::State& state) {
    const Pass pass(static_cast<int>(state.range(0)));
    for (auto _ : state)
        for (int t = 1; t <= pass.Mesh.NHalf; ++t)
            for (const MeanStressInfluence& influence : pass.Influence)
                benchmark::DoNotOptimize(SumOfUnitForces(influence, t, pass.Force));
    CountFactors(state, pass);
}

void CircleStressSideBySide(benchmark::State& state) {
    const Pass pass(static_cast<int>(state.range(0)));
    PolarStressSums sums(pass.Mesh, pass.Layers, pass.Mesh.NHalf);
    const auto of = [&pass](int k) -> const MeanStressInfluence& {
        return pass.Influence[static_cast<std::size_t>(k)];
    };
    const PolarStressSums::Terms terms{[&](int k, int t) { return of(k).UnitForce(t, t) * pass.Force(t); },
                                       [&](int k, int t) { return SumOfUnitForces(of(k), t, pass.Force); }};
    const int threads = state.range(1) == 0 ? sums.UsefulThreads() : static_cast<int>(state.range(1));
    for (auto _ : state) {
        sums.Sum(pass.Force, terms, threads, [](double) {});
        benchmark::DoNotOptimize(sums.At(0, 1));
    }
    CountFactors(state, pass);
}

double PeakOf(bool run, int side, Kind kind) {
    const pid_t child = fork();
    if (child == 0) {
        SetProblem(side, kind);
        if (run) Run();
        _exit(Session.CalcAborted ? 1 : 0);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return status == 0 ? usage.ru_maxrss * 1024.0 : -1;
}

void PeakMemory(benchmark::State& state, Kind kind) {
    const int side = static_cast<int>(state.range(0));
    const double nodes = static_cast<double>(side) * side;
    double peak = 0;
    for (auto _ : state) {
        const double before = PeakOf(false, side, kind), after = PeakOf(true, side, kind);
        if (before < 0 || after < 0) return state.SkipWithError("the run failed");
        peak = after - before;
    }
    CountNodes(state);
    state.counters["peak_MB"] = peak / 1e6;
    state.counters["of_matrices"] = peak / (2 * nodes * nodes * sizeof(Single));
}

#define SIDES ->Arg(11)->Arg(21)->Arg(41)->Arg(81)->Unit(benchmark::kMillisecond)
#define ALL_SIDES SIDES->Arg(181)
#define BY_INVERSE ->Arg(51)->Arg(81)->Unit(benchmark::kMillisecond)->Iterations(1)
#define DIVISIONS ->Arg(12)->Arg(24)->Arg(48)->Arg(72)->Unit(benchmark::kMillisecond)
// Memory first: a child inherits what its parent has taken.
#define PEAKS ->Arg(41)->Arg(81)->Arg(181)->Unit(benchmark::kMillisecond)->Iterations(1)
BENCHMARK_CAPTURE(PeakMemory, elastic, kElastic) PEAKS;
BENCHMARK_CAPTURE(PeakMemory, thick_clay, kThickClay) PEAKS;
BENCHMARK(MeshAndFlexibility) SIDES;
BENCHMARK(Inverse) SIDES;
BENCHMARK_CAPTURE(WholeRun, elastic, kElastic) ALL_SIDES;
BENCHMARK_CAPTURE(WholeRun, uniform_clay, kUniformClay) ALL_SIDES;
BENCHMARK_CAPTURE(WholeRun, thin_clay, kThinClay) ALL_SIDES;
BENCHMARK_CAPTURE(WholeRun, thick_clay, kThickClay) ALL_SIDES;
BENCHMARK_CAPTURE(WholeRun, uniform_clay_by_inverse, kUniformClay, 1e-9) BY_INVERSE;
BENCHMARK_CAPTURE(WholeRun, thin_clay_by_inverse, kThinClay, 1e-9) BY_INVERSE;
BENCHMARK_CAPTURE(WholeRun, thick_clay_by_inverse, kThickClay, 1e-9) BY_INVERSE;
BENCHMARK_CAPTURE(WholeRun, punch, kPunch) SIDES;
BENCHMARK_CAPTURE(WholeRun, punch_on_clay, kPunchOnClay) SIDES;
BENCHMARK_CAPTURE(CircleRun, elastic, kElastic) DIVISIONS;
BENCHMARK_CAPTURE(CircleRun, uniform_clay, kUniformClay) DIVISIONS;
BENCHMARK_CAPTURE(CircleRun, thin_clay, kThinClay) DIVISIONS;
BENCHMARK_CAPTURE(CircleRun, thick_clay, kThickClay) DIVISIONS;
BENCHMARK_CAPTURE(CircleRun, punch, kPunch) DIVISIONS;
BENCHMARK_CAPTURE(CircleRun, punch_on_clay, kPunchOnClay) DIVISIONS;
BENCHMARK(CircleStressOneByOne)->Arg(48)->Unit(benchmark::kMillisecond);
BENCHMARK(CircleStressSideBySide)->Args({48, 1})->Args({48, 0})->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lithmark
