// The chart and its services, filled once by main.
#pragma once

#include "plot/Chart.h"
#include "plot/PlotBuilder.h"

namespace brask {

// Both live as long as main does; only main and the main window take the whole.
struct Plotting {
    Chart& Plot;
    PlotBuilder& Builder;
};

}  // namespace brask
