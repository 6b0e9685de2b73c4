// Turns the data set into the curves, axes and titles of the chart, in one of three layouts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/DataSet.h"
#include "data/PlotColors.h"
#include "data/Settings.h"
#include "data/TemperatureUnit.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"

namespace brask {

enum class GraphType { kContinuous = 0, kOverlapDays = 1, kOverlapWeeks = 2 };

// What the user chose about the plot, as it stands now.
struct PlotOptions {
    GraphType Layout = GraphType::kContinuous;
    int StartWeekOn = 0;  // 0 Sunday, 1 Monday
    bool MarkDataPoints = true;
    std::string TemperatureLabel;  // "°C" or "°F"
    PlotColors Colors;
    bool ColorLabelsLikeLines = true;
    ColorValue AxisLabels = kBlack;
    ChartBackground Background;
};

// The stored choices; the unit comes from the object in force.
PlotOptions ReadPlotOptions(const Settings& settings, const TemperatureUnit& unit);

class PlotBuilder {
  public:
    PlotBuilder(Chart& chart, const DataSet& data, const UserLocale& locale, const Texts& texts);

    // Clears the chart and builds it from the data set. Without readings: axes and no title.
    void Rebuild(const PlotOptions& options);

    // First reading of each period of the last overlapping rebuild, in order; empty for the
    // continuous layout.
    const std::vector<std::int32_t>& PeriodStarts() const { return periodStarts_; }
    // Colours of the two curves of the last continuous rebuild.
    ColorValue GasColor() const { return gasColor_; }
    ColorValue TemperatureColor() const { return temperatureColor_; }

  private:
    struct Extremes;

    Chart& chart_;
    const DataSet& data_;
    const UserLocale& locale_;
    const Texts& texts_;
    std::vector<std::int32_t> periodStarts_;
    ColorValue gasColor_;
    ColorValue temperatureColor_;
};

}  // namespace brask
