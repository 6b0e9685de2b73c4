// What the user chose about the plot: its layout, colours and background.
#pragma once

#include <string>

#include "data/ColorValue.h"
#include "data/PlotColors.h"
#include "data/Settings.h"
#include "data/TemperatureUnit.h"
#include "plot/Chart.h"

namespace brask {

// The numbers are those that are stored, and those of the option buttons.
enum class GraphType { kContinuous = 0, kOverlapDays = 1, kOverlapWeeks = 2 };

// The choices as they stand now.
struct PlotOptions {
    GraphType Layout = GraphType::kContinuous;
    int StartWeekOn = 0;  // 0 Sunday, 1 Monday
    bool MarkDataPoints = true;
    std::string TemperatureLabel = "°C";  // or "°F", UTF-8
    PlotColors Colors;                    // must be loaded: curves take their colours from it
    bool ColorLabelsLikeLines = true;     // else all labels have the colour AxisLabels
    ColorValue AxisLabels = kBlack;
    ChartBackground Background;
};

// The stored choices; the unit comes from the object in force. Never fails: what is stored badly
// reads as Settings reads it.
PlotOptions ReadPlotOptions(const Settings& settings, const TemperatureUnit& unit);

}  // namespace brask
