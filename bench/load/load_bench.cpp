// Loading a large file: the program's loader against the reference parser, in turns in one run.
// The file is named by the environment variable BRASK_BENCH_FILE.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "Loading.h"
#include "ReferenceParser.h"

namespace {

const char* BenchFile() {
    const char* const path = std::getenv("BRASK_BENCH_FILE");
    return path != nullptr ? path : "build/bench/readings-10m.csv";
}

void LoadReference(benchmark::State& state) {
    std::size_t readings = 0;
    for ([[maybe_unused]] auto _ : state) {
        readings = brask::bench::ReferenceParser::Read(BenchFile()).Time.size();
    }
    if (readings == 0) state.SkipWithError("no readings; is BRASK_BENCH_FILE set?");
    state.counters["readings"] = static_cast<double>(readings);
}

void LoadDataFile(benchmark::State& state) {
    std::int32_t readings = 0;
    for ([[maybe_unused]] auto _ : state) {
        brask::bench::Loading loading;
        readings = loading.Load(BenchFile());
    }
    if (readings == 0) state.SkipWithError("no readings; is BRASK_BENCH_FILE set?");
    state.counters["readings"] = readings;
}

BENCHMARK(LoadReference)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadDataFile)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
