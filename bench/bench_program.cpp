// Whole runs of lithmark-cli, each in a process of its own: processor time of all its processes, time by the clock, and
// peak memory of the greatest of them. For a floor, a program that does nothing is started too.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

// Projects of the runs; gone at the end.
class Folder {
  public:
    Folder() { fs::create_directories(path_); }
    ~Folder() { fs::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string operator/(const std::string& name) const { return (path_ / name).string(); }

  private:
    fs::path path_ = fs::temp_directory_path() / "lithmark-bench-program";
};
const Folder& TheFolder() {
    static const Folder folder;
    return folder;
}

struct Used {
    double Seconds = 0, ProcessorSeconds = 0, PeakBytes = 0;
    bool Good = false;
};

double SecondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

Used Run(const Words& words) {
    std::vector<char*> arguments;
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
    const auto begun = std::chrono::steady_clock::now();
    pid_t process = 0;
    const int error = posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    int status = 1;
    rusage usage{};
    if (error == 0) wait4(process, &status, 0, &usage);  // with what its own workers used
    posix_spawn_file_actions_destroy(&actions);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    return {taken.count(), SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime), usage.ru_maxrss * 1024.0,
            error == 0 && status == 0};
}

// Counts processor time; the clock's is a counter beside it.
void Runs(benchmark::State& state, const Words& words) {
    double seconds = 0, peak = 0;
    for (auto _ : state) {
        const Used used = Run(words);
        if (!used.Good) return state.SkipWithError("the run failed");
        state.SetIterationTime(used.ProcessorSeconds);
        seconds += used.Seconds;
        peak = std::max(peak, used.PeakBytes);
    }
    state.counters["clock_ms"] = benchmark::Counter(seconds * 1e3, benchmark::Counter::kAvgIterations);
    state.counters["peak_MB"] = peak / 1e6;
}

std::string Project(const std::string& name, int problem, const Words& sets) {
    const std::string path = TheFolder() / name;
    Words words = {LITHMARK_CLI, "new", path, "--problem", std::to_string(problem)};
    for (const std::string& set : sets) words.insert(words.end(), {"--set", set});
    return Run(words).Good ? path + ".PO3" : std::string();
}

Words Cli(const Words& words) {
    Words all = {LITHMARK_CLI};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

std::string PointLoad() {
    static const std::string project = Project("Point", 1, {"LoadType=1", "x=1", "y=0.5", "z=2", "Q=1000"});
    return project;
}

void ProgramThatDoesNothing(benchmark::State& state) {
    Runs(state, {"/bin/true"});
}
BENCHMARK(ProgramThatDoesNothing)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

void ReportOfAPointLoad(benchmark::State& state) {
    Runs(state, Cli({"report", PointLoad()}));
}
BENCHMARK(ReportOfAPointLoad)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

// 32 761 nodes, with report and export files; distances of nodes are settings, not data of the project.
void ReportOfTheLargestRaft(benchmark::State& state) {
    const std::string project =
        Project("Raft", 9, {"LoadType=2", "A=45", "B=45", "h=20", "Exz_x=2", "Exz_y=1", "AnalysisType=false"});
    Runs(state, Cli({"report", project, "--set", "PrefDx=0.25", "--set", "PrefDy=0.25"}));
}
BENCHMARK(ReportOfTheLargestRaft)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

// Two random fields, a table as a file; the summary of no result, of one, and of all 21.
void StudyOfAPointLoad(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0)), summed = static_cast<int>(state.range(1));
    Words words = {"study",     PointLoad(),          "--random", "Q=lognormal:1000:20%",  "--random", "z=uniform:1:3",
                   "--samples", std::to_string(rows), "--output", TheFolder() / "rows.csv"};
    if (summed <= 1) words.insert(words.end(), {"--take", "Sigma_z"});
    if (summed > 0) words.insert(words.end(), {"--summary", TheFolder() / "summary.csv"});
    Runs(state, Cli(words));
    state.counters["row_us"] =
        benchmark::Counter(rows * 1e-6, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(StudyOfAPointLoad)
    ->ArgNames({"rows", "summed"})
    ->ArgsProduct({{1000000}, {0, 1, 21}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
