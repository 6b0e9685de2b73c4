// A data set and the chart that is built from it.
#pragma once

#include <gtest/gtest.h>

#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "plot/PlotBuilder.h"

namespace brask {

constexpr double k5March2004 = 38051;  // a Friday

struct Reading {
    double Time;
    double Gas;
    double Temperature;
};

class BuiltPlot : public testing::Test {
  protected:
    // Rebuilds the chart from these readings, with the settings in Store.
    void Build(GraphType layout, const std::vector<Reading>& readings) {
        Data.ReadingTime.clear();
        Data.GasPpm.clear();
        Data.Temperature.clear();
        for (const Reading& reading : readings) {
            Data.ReadingTime.push_back(reading.Time);
            Data.GasPpm.push_back(reading.Gas);
            Data.Temperature.push_back(reading.Temperature);
        }
        Data.ReadingCount = static_cast<std::int32_t>(readings.size());
        Store.Values["GraphType"] = std::to_string(static_cast<int>(layout));
        MemorySettingsStore own;
        const Settings settings(Store, own, Locale, [](const auto&, const auto&) {});
        Options = ReadPlotOptions(settings, TemperatureUnit());
        Plot.Rebuild(Options);
    }

    Chart Chart1;
    DataSet Data;
    FixedUserLocale Locale;
    EnglishTexts Texts1;
    MemorySettingsStore Store;
    PlotOptions Options;
    PlotBuilder Plot{Chart1, Data, Locale, Texts1};
};

}  // namespace brask
