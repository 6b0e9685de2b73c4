// Expanding and checking a transfer of many readings, each against its measure in the same run.
// The stream is named by the environment variable BRASK_BENCH_RAW, its data file by
// BRASK_BENCH_DATA.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "CharacterExpander.h"
#include "Loading.h"
#include "data/ReceivedFileExpander.h"
#include "link/ReceivedFileCheck.h"

namespace {

std::string FileOf(const char* variable) {
    const char* const path = std::getenv(variable);
    return path != nullptr ? path : "";
}

const std::string kRaw = FileOf("BRASK_BENCH_RAW");
const std::string kData = FileOf("BRASK_BENCH_DATA");
const std::string kExpanded = kRaw + ".expanded";

// A benchmark that found nothing to do has measured nothing.
void Count(benchmark::State& state, std::int64_t lines) {
    if (lines <= 0) state.SkipWithError("nothing read; are the variables set?");
    state.counters["lines"] = static_cast<double>(lines);
}

void ExpandReceived(benchmark::State& state) {
    std::int64_t lines = 0;
    for ([[maybe_unused]] auto _ : state) {
        brask::PosixFiles files;
        const auto expanded =
            brask::ReceivedFileExpander(files).ExpandReceivedFile(kRaw, kExpanded);
        lines = expanded.Ok() ? expanded.Value() : 0;
    }
    Count(state, lines);
}

void ExpandByCharacter(benchmark::State& state) {
    std::int64_t lines = 0;
    for ([[maybe_unused]] auto _ : state) lines = brask::bench::ExpandByCharacter(kRaw, kExpanded);
    Count(state, lines);
}

void VerifyDataFile(benchmark::State& state) {
    std::int64_t counted = 0;
    for ([[maybe_unused]] auto _ : state) {
        brask::PosixFiles files;
        const auto opened = files.Open(kData);
        if (!opened.Ok()) break;
        counted = brask::CheckReceivedFile(*opened.Value(), [] { return true; }).Counted;
    }
    Count(state, counted);
}

void LoadSameFile(benchmark::State& state) {
    std::int32_t readings = 0;
    for ([[maybe_unused]] auto _ : state) readings = brask::bench::Loading().Load(kData);
    Count(state, readings);
}

BENCHMARK(ExpandReceived)->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandByCharacter)->Unit(benchmark::kMillisecond);
BENCHMARK(VerifyDataFile)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadSameFile)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
