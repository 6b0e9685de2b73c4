// What the options of brask curves and brask plot ask for; checked alike by brask and brask-plot.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "cli/CommandLine.h"
#include "platform/Result.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PlotOptions.h"

namespace brask {

// --layout, --start-week, --no-data-points.
std::span<const OptionRow> CurvesOptions();
// These, and those about the picture.
std::span<const OptionRow> DrawingOptions();

// Puts the options about the layout in force over the stored choices.
void OverrideLayout(const CommandLine& line, PlotOptions& options);

struct PlotRequest {
    // as typed; its ending, .bmp or .png, says the format
    std::string Picture;  // the file to write
    int Width = 1600;     // pixels
    int Height = 900;
    // As typed: what they mean depends on the layout, which may be a stored one.
    std::optional<std::string> From;  // both or neither
    std::optional<std::string> To;
};

// What can be checked without the stored settings. The error is a one-line reason.
Result<PlotRequest> ReadPlotRequest(const CommandLine& line, const Texts& texts);

// The X range that --from and --to choose: serials in the continuous layout, hours in the days
// layout; nothing when they are not given. The error is a one-line reason.
Result<std::optional<AxisRange>> ReadPeriod(const PlotRequest& request, GraphType layout,
                                            LongDateOrder order, const Texts& texts);

}  // namespace brask
