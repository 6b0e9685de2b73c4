// Building the plot of a large file, against loading that file and against copying its arrays.
#include <benchmark/benchmark.h>

#include <set>
#include <string>

#include "bench/plot/PlotInput.h"

namespace brask::bench {
namespace {

void LoadForPlot(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        Loading loading;
        benchmark::DoNotOptimize(loading.Load(BenchFile()));
    }
}

double PyramidBytes(const Chart& chart) {
    std::set<const CurvePyramid*> pyramids;
    for (const Curve& curve : chart.Curves()) {
        pyramids.insert({curve.PyramidX.get(), curve.PyramidY.get()});
    }
    double bytes = 0;
    for (const CurvePyramid* pyramid : pyramids) bytes += static_cast<double>(pyramid->Bytes());
    return bytes;
}

void BuildPlot(benchmark::State& state, GraphType layout) {
    PlotInput& input = Input();
    const PlotOptions options = PlainOptions(layout);
    const auto readings = input.loading.Data().Times().size();
    if (readings == 0) state.SkipWithError("no readings; is BRASK_BENCH_FILE set?");
    for ([[maybe_unused]] auto _ : state) input.builder.Rebuild(options);
    const double bytes = PyramidBytes(input.chart) / static_cast<double>(readings);
    state.SetLabel("pyramids take " + std::to_string(bytes) + " bytes a reading (below 2)");
    input.chart.Clear();
}

void BuildContinuous(benchmark::State& state) { BuildPlot(state, GraphType::kContinuous); }
void BuildDays(benchmark::State& state) { BuildPlot(state, GraphType::kOverlapDays); }
void BuildWeeks(benchmark::State& state) { BuildPlot(state, GraphType::kOverlapWeeks); }

void CopyArrays(benchmark::State& state) {
    const DataSet& data = Input().loading.Data();
    const auto times = data.Times();
    const auto gas = data.Gas();
    const auto temperatures = data.Temperatures();
    for ([[maybe_unused]] auto _ : state) {
        std::vector<double> x(times.size());
        std::vector<double> y(times.size());
        std::vector<double> y1(times.size());
        for (std::size_t i = 0; i < times.size(); ++i) {
            x[i] = times[i];
            y[i] = gas[i];
            y1[i] = temperatures[i];
        }
        benchmark::DoNotOptimize(x.data());
        benchmark::DoNotOptimize(y.data());
        benchmark::DoNotOptimize(y1.data());
        benchmark::ClobberMemory();
    }
}

void GroupDays(benchmark::State& state) {
    PlotInput& input = Input();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(GroupByDay(input.loading.Data().Times(), input.locale));
    }
}

void GroupWeeks(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(GroupByWeek(Input().loading.Data().Times(), 1));
    }
}

// Two days whose readings take turns: as many runs as there are readings.
void GroupDaysInTurns(benchmark::State& state) {
    std::vector<double> times(Input().loading.Data().Times().size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        times[i] = 37622.0 + static_cast<double>(i % 2) + 1e-8 * static_cast<double>(i);
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(GroupByDay(times, Input().locale));
    }
}

BENCHMARK(LoadForPlot)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildContinuous)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildDays)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildWeeks)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyArrays)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupDays)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupWeeks)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupDaysInTurns)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace brask::bench

BENCHMARK_MAIN();
