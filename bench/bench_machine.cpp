// What this machine can do at the most: the measures by which docs/performance.md tells the floor of a figure. Nothing
// of the program runs here.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace {

// Keeps a value in a register of its own, where the compiler cannot see what becomes of it.
template <typename T>
[[gnu::always_inline]] inline void Hide(T& value) {
#if defined(__x86_64__)
    if constexpr (std::is_floating_point_v<T>)
        asm volatile("" : "+x"(value));
    else
        asm volatile("" : "+r"(value));
#else
    benchmark::DoNotOptimize(value);
#endif
}

void CountItems(benchmark::State& state, double each) {
    state.SetItemsProcessed(static_cast<std::int64_t>(static_cast<double>(state.iterations()) * each));
}

// Additions of whole numbers that wait for each other: one a cycle.
void Cycles(benchmark::State& state) {
    constexpr int kLength = 4096;
    std::uint64_t sum = 1;
    for (auto _ : state)
        for (int i = 0; i < kLength; ++i) {
            sum += 3;
            Hide(sum);
        }
    benchmark::DoNotOptimize(sum);
    CountItems(state, kLength);
}
BENCHMARK(Cycles);

// Single precision, each product rounded ahead of its sum: two operations.
template <int Bytes>
struct Lanes {
    typedef float Vector __attribute__((vector_size(Bytes), aligned(alignof(float))));
};

constexpr int kChains = 12, kTurns = 512;

template <int Bytes>
[[gnu::always_inline]] inline float MultiplyAndAdd(float factor, float term) {
    typename Lanes<Bytes>::Vector sum[kChains];
    float start = factor;
    for (auto& each : sum) each = (start += 1) - typename Lanes<Bytes>::Vector{};
    for (int turn = 0; turn < kTurns; ++turn)
#pragma GCC unroll 16
        for (auto& each : sum) each = each * factor + term;
    float all = 0;
    for (const auto& each : sum) all += each[0];
    return all;
}

template <int Bytes>
void CountOperations(benchmark::State& state) {
    CountItems(state, 2.0 * kChains * kTurns * Bytes / sizeof(float));
}

void MultiplyAdds16Bytes(benchmark::State& state) {
    float factor = 0.5F;
    for (auto _ : state) {
        Hide(factor);
        benchmark::DoNotOptimize(MultiplyAndAdd<16>(factor, 1));
    }
    CountOperations<16>(state);
}
BENCHMARK(MultiplyAdds16Bytes);

#if defined(__x86_64__)
[[gnu::target("avx2"), gnu::noinline]] float Wide(float factor) {
    return MultiplyAndAdd<32>(factor, 1);
}
[[gnu::target("avx512f"), gnu::noinline]] float Widest(float factor) {
    return MultiplyAndAdd<64>(factor, 1);
}

void MultiplyAdds32Bytes(benchmark::State& state) {
    if (!__builtin_cpu_supports("avx2")) return state.SkipWithError("no AVX2");
    float factor = 0.5F;
    for (auto _ : state) {
        Hide(factor);
        benchmark::DoNotOptimize(Wide(factor));
    }
    CountOperations<32>(state);
}
BENCHMARK(MultiplyAdds32Bytes);

void MultiplyAdds64Bytes(benchmark::State& state) {
    if (!__builtin_cpu_supports("avx512f")) return state.SkipWithError("no AVX-512");
    float factor = 0.5F;
    for (auto _ : state) {
        Hide(factor);
        benchmark::DoNotOptimize(Widest(factor));
    }
    CountOperations<64>(state);
}
BENCHMARK(MultiplyAdds64Bytes);
#endif

// Operations in 64 bits that do not wait for each other, one number at a time.
template <typename Operation>
void OneByOne(benchmark::State& state, const Operation& operation) {
    constexpr int kValues = 512;
    std::array<double, kValues> values;
    std::mt19937 random(1);
    for (double& value : values) value = std::uniform_real_distribution<double>(0.5, 4)(random);
    for (auto _ : state)
        for (const double each : values) {
            double result = operation(each);
            Hide(result);
        }
    CountItems(state, kValues);
}

void Divisions(benchmark::State& state) {
    OneByOne(state, [](double x) { return 1.75 / x; });
}
void SquareRoots(benchmark::State& state) {
    OneByOne(state, [](double x) { return std::sqrt(x); });
}
void Logarithms(benchmark::State& state) {
    OneByOne(state, [](double x) { return std::log(x); });
}
void Arctangents(benchmark::State& state) {
    OneByOne(state, [](double x) { return std::atan(x); });
}
void Cosines(benchmark::State& state) {
    OneByOne(state, [](double x) { return std::cos(x); });
}
void NumberTexts(benchmark::State& state) {
    std::array<char, 64> text;
    OneByOne(state, [&](double x) {
        return static_cast<double>(
            std::to_chars(text.data(), text.data() + text.size(), x, std::chars_format::fixed, 3).ptr - text.data());
    });
}
BENCHMARK(Divisions);
BENCHMARK(SquareRoots);
BENCHMARK(Logarithms);
BENCHMARK(Arctangents);
BENCHMARK(Cosines);
BENCHMARK(NumberTexts);

// Half a gigabyte, more than a processor's caches.
constexpr std::size_t kFar = std::size_t{1} << 29;

void ReadMemory(benchmark::State& state) {
    const std::vector<std::uint64_t> memory(kFar / sizeof(std::uint64_t), 1);
    for (auto _ : state) benchmark::DoNotOptimize(std::accumulate(memory.begin(), memory.end(), std::uint64_t{0}));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kFar));
}
BENCHMARK(ReadMemory)->Unit(benchmark::kMillisecond);

void WriteMemory(benchmark::State& state) {
    std::vector<char> memory(kFar, 1);
    char value = 1;
    for (auto _ : state) {
        std::fill(memory.begin(), memory.end(), ++value);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kFar));
}
BENCHMARK(WriteMemory)->Unit(benchmark::kMillisecond);

// Memory that the process did not have: the system clears it page by page.
void TakeMemory(benchmark::State& state) {
    for (auto _ : state) {
        const std::unique_ptr<char[]> memory(new char[kFar]);
        for (std::size_t i = 0; i < kFar; i += 4096) memory[i] = 1;
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kFar));
}
BENCHMARK(TakeMemory)->Unit(benchmark::kMillisecond);

// Reads that wait for each other, all over so many bytes.
void ReadAnywhere(benchmark::State& state) {
    std::vector<std::uint32_t> next(static_cast<std::size_t>(state.range(0)) / sizeof(std::uint32_t));
    std::iota(next.begin(), next.end(), 0U);
    std::mt19937 random(1);
    for (std::size_t i = next.size() - 1; i > 0; --i) std::swap(next[i], next[random() % i]);  // one ring (Sattolo)
    std::uint32_t at = 0;
    for (auto _ : state) at = next[at];
    benchmark::DoNotOptimize(at);
    CountItems(state, 1);
}
BENCHMARK(ReadAnywhere)->Arg(1 << 15)->Arg(1 << 20)->Arg(1 << 26);

// Files of 4 kB as a run writes them: beside their place, brought to the disk, renamed.
void Files(benchmark::State& state) {
    const auto folder = std::filesystem::temp_directory_path() / "lithmark-bench-files";
    std::filesystem::create_directories(folder);
    const std::string target = (folder / "file").string(), beside = target + ".tmp", bytes(4096, 'x');
    for (auto _ : state) {
        const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (write(file, bytes.data(), bytes.size()) < 0 || (state.range(0) != 0 && fsync(file) != 0) ||
            close(file) != 0 || std::rename(beside.c_str(), target.c_str()) != 0)
            return state.SkipWithError("no file");
    }
    std::filesystem::remove_all(folder);
    CountItems(state, 1);
}
BENCHMARK(Files)->ArgName("sync")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
