#include "data/SettingsTable.h"

#include <algorithm>
#include <array>

namespace brask {
namespace {

using enum SettingForm;

// Defaults are the stored texts: what a fresh installation behaves like, and what `settings list`
// shows beside the value.
const auto kKnown = std::to_array<SettingRow>({
    {"UpperToleranceLimit", kNumber, "1000", TextRow("settings", "upper tolerance limit, ppm")},
    {"UseToleranceCurve", kFlag, "NO",
     TextRow("settings", "draw the limit line and check readings")},
    {"MarkOutOfToleranceInRed", kFlag, "NO",
     TextRow("settings", "draw readings above the limit with a wide line")},
    {"DisplayPeriod", kIndex, "",
     TextRow("settings", "display period: 0 all data, 1 dates, 2 times, 3 days; written only")},
    {"DisplayTimeFrom", kText, "00:00",
     TextRow("settings", "start time of the daily display window, hh:mm")},
    {"DisplayTimeTo", kText, "23:59",
     TextRow("settings", "end time of the daily display window, hh:mm")},
    {"GraphType", kIndex, "0",
     TextRow("settings", "plot layout: 0 continuous, 1 overlap days, 2 overlap weeks")},
    {"StartWeekOn", kIndex, "0", TextRow("settings", "first day of the week: 0 Sunday, 1 Monday")},
    {"StartViewDayOn", kIndex, "0", TextRow("settings", "list index of the first displayed day")},
    {"EndViewDayOn", kText, "", TextRow("settings", "name of the last displayed day")},
    {"UseDataMarkers", kFlag, "YES", TextRow("settings", "mark individual data points")},
    {"ScaleYAxisOnZoom", kFlag, "NO", TextRow("settings", "rescale the Y axes when zooming")},
    {"CursorType", kIndex, "1",
     TextRow("settings",
             "selected-point cursor: 0 lines, 1 square, 2 vertical line, "
             "3 horizontal line, 4 circle, 5 diamond, 6 filled box")},
    {"DisplayTemperatureUnits", kNumber, "0",
     TextRow("settings", "temperature unit: 0 Celsius, 1 Fahrenheit")},
    {"NumPlotColorsDefined", kNumber, "0",
     TextRow("settings", "length of the colour table; 0 calls for the nine defaults")},
    {"BackgroundColor", kColour, "&HFFFFFF", TextRow("settings", "axes background colour")},
    {"BackgroundGraphClr", kColour, "&HFFFFFF", TextRow("settings", "graph background colour")},
    {"TitleClr", kColour, "&H0", TextRow("settings", "title colour")},
    {"AxesLblClr", kColour, "&H0", TextRow("settings", "axis label colour")},
    {"UseLblColors", kFlag, "YES", TextRow("settings", "colour axis labels like their lines")},
    {"UseBackgroundImage", kFlag, "NO", TextRow("settings", "show a picture behind the plot")},
    {"BackgroundStretch", kFlag, "YES", TextRow("settings", "stretch that picture")},
    {"BackgroundImageFile", kText, "", TextRow("settings", "the picture file")},
    {"ScalePrint", kFlag, "YES", TextRow("settings", "scale the printed plot to the paper")},
    {"OpenFormFullScreen", kFlag, "NO",
     TextRow("settings", "start with the main window maximised")},
    {"NotifyUserOfNewFiles", kFlag, "YES",
     TextRow("settings", "tell the user each time a data file is saved")},
    {"AutoClear", kFlag, "NO",
     TextRow("settings", "clear the instrument after an error-free download")},
    {"DataAccessIsGlobal", kFlag, "YES",
     TextRow("settings", "keep data under the all-users directory rather than the user's")},
    {"UserSpecifiedDirectoryActive", kFlag, "NO",
     TextRow("settings", "use the user-chosen directory")},
    {"UserSpecDir", kText, "", TextRow("settings", "the user-chosen data directory")},
    {"AskedActiveSync", kText, "XX",
     TextRow("settings", "OK once the sync-software question was answered")},
    {"NeverWarn", kFlag, "NO", TextRow("settings", "suppress the missing-sync-software warning")},
    {"WarnedVers", kFlag, "NO",
     TextRow("settings", "the unsupported-Windows warning was shown once")},
});

const auto kOwn = std::to_array<SettingRow>({
    {"InstrumentAddress", kText, "irda", TextRow("settings", "link to the instrument")},
    {"HandheldAddress", kText, "", TextRow("settings", "link to the handheld")},
    {"RecentFiles", kText, "", TextRow("settings", "data files opened last, one a line")},
});

}  // namespace

std::span<const SettingRow> KnownSettings() { return kKnown; }

std::span<const SettingRow> OwnSettings() { return kOwn; }

std::string_view FormName(SettingForm form) {
    static constexpr std::array<std::string_view, 5> kNames = {"Flag", "Number", "Index", "Text",
                                                               "Colour"};
    return kNames[static_cast<std::size_t>(form)];
}

bool IsPlotLineColorKey(std::string_view key) {
    constexpr std::string_view kPrefix = "PlotLineColor";
    if (key.substr(0, kPrefix.size()) != kPrefix) return false;
    const std::string_view number = key.substr(kPrefix.size());
    // Six digits are far beyond the longest table and still fit a number.
    return !number.empty() && number.size() <= 6 && number[0] != '0' &&
           std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace brask
