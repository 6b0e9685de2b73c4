// The readings that the benchmarks of the plot work on, and the plot built from them.
#pragma once

#include <cstdlib>
#include <string>

#include "bench/load/Loading.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "plot/PlotBuilder.h"

namespace brask::bench {

// The file named by the environment variable BRASK_BENCH_FILE.
inline std::string BenchFile() {
    const char* const path = std::getenv("BRASK_BENCH_FILE");
    return path != nullptr ? path : "build/bench/readings-10m.csv";
}

// Default colours, no markers.
inline PlotOptions PlainOptions(GraphType layout) {
    MemorySettingsStore known;
    MemorySettingsStore own;
    const FixedUserLocale locale;
    PlotOptions options;
    options.Layout = layout;
    options.MarkDataPoints = false;
    options.Colors.Load(Settings(known, own, locale, [](const auto&, const auto&) {}));
    return options;
}

// Readings loaded once, and a chart of them.
struct PlotInput {
    PlotInput() { loading.Load(BenchFile()); }

    Loading loading;
    FixedUserLocale locale;
    EnglishTexts texts;
    Chart chart;
    PlotBuilder builder{chart, loading.Data(), locale, texts};
};

// Shared by all benchmarks of a program.
inline PlotInput& Input() {
    static PlotInput input;
    return input;
}

}  // namespace brask::bench
