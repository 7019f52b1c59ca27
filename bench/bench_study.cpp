// What a row of a study costs beside its calculation: the values of its random fields, the run in a worker, its line in
// the table and its place in the summary.
#include <benchmark/benchmark.h>

#include <vector>

#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "kernels/RunProject.h"
#include "study/RowWork.h"
#include "study/StudyLine.h"
#include "study/StudyPlan.h"
#include "study/StudySummary.h"
#include "study/StudyTakes.h"

using namespace lithmark;

namespace {

StudyRequest Request(int problemType, bool sobol) {
    StartSession();
    Session.ProblemType = problemType;
    SetProblemDefaults();
    SetDerivedFields(Session);
    StudyRequest request;
    request.Random = {"Es=lognormal:5000:30%", "z=uniform:1:3"};
    request.Samples = std::uint64_t{1} << 20;
    request.Sobol = sobol;
    return request;
}

void PlannedRows(benchmark::State& state, bool sobol) {
    const StudyPlan plan(Request(1, sobol));
    std::uint64_t row = 0;
    for (auto _ : state) benchmark::DoNotOptimize(plan.Row(row++ % plan.Count()));
    state.SetItemsProcessed(state.iterations());
}

void RunsOfRows(benchmark::State& state, int problemType) {
    const StudyRequest request = Request(problemType, false);
    const StudyPlan plan(request);
    const RowWork work(Session, TakesOf(request));
    std::vector<RowInput> inputs(1024);
    for (std::size_t i = 0; i < inputs.size(); ++i) inputs[i] = plan.Row(i).Input;
    std::size_t row = 0;
    for (auto _ : state) benchmark::DoNotOptimize(work.Run(inputs[row++ % inputs.size()]));
    state.SetItemsProcessed(state.iterations());
}

// A row that is done: its line, its record, and the summary with a limit.
void WrittenRows(benchmark::State& state) {
    StudyRequest request = Request(1, false);
    request.Take = {"Sigma_z"};
    request.Limit = {"Sigma_z=100"};
    const StudyPlan plan(request);
    const StudyHead head{false, plan.Fields(), TakesOf(request), "00000000"};
    StudySummary summary(plan, head, LimitsOf(request));
    const PlannedRow planned = plan.Row(0);
    RowOutcome outcome;
    outcome.Aborted = false;
    outcome.Numbers = {0};
    int at = 0;
    for (auto _ : state) {
        at = (at + 7919) % 65536;
        outcome.Numbers[0] = 100 + static_cast<float>(at) * 0.001F;
        const StudyLine line = LineOf(1, planned, outcome, head);
        benchmark::DoNotOptimize(CsvRecord(CellsOf(head, line)));
        summary.Add(line);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(PlannedRows, random, false);
BENCHMARK_CAPTURE(PlannedRows, sobol, true);
BENCHMARK_CAPTURE(RunsOfRows, problem_1, 1);
BENCHMARK_CAPTURE(RunsOfRows, problem_4, 4);
BENCHMARK_CAPTURE(RunsOfRows, problem_10, 10);
BENCHMARK(WrittenRows);

}  // namespace
