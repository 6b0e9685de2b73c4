// The chart and its services, filled once by main.
#pragma once

#include "plot/Chart.h"
#include "plot/ChartActions.h"
#include "plot/DisplayPeriod.h"
#include "plot/PlotBuilder.h"
#include "plot/PlotNavigation.h"
#include "plot/PointSelection.h"

namespace brask {

// Both live as long as main does; only main and the main window take the whole.
struct Plotting {
    Chart& Plot;
    PlotBuilder& Builder;
    ChartActions& Actions;
    PlotNavigation& Navigation;
    PointSelection& Selection;
    DisplayPeriod& Period;
};

}  // namespace brask
