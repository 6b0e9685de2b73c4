// The chart and its services, filled once by main.
#pragma once

#include "plot/Chart.h"
#include "plot/PlotBuilder.h"

namespace brask {

struct Plotting {
    Chart& Plot;
    PlotBuilder& Builder;
};

}  // namespace brask
