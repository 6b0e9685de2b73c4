#include "data/ProgramOptions.h"

#include <array>
#include <cmath>

#include "data/DataTexts.h"
#include "data/NumberText.h"

namespace brask {

std::optional<int> CursorStyleOf(double index) {
    // Users see the buttons in this order; the chart numbers its cursors in its own.
    static constexpr std::array<int, 7> kStyles = {1, 9, 3, 4, 5, 10, 8};
    if (!(index >= 0 && index < kStyles.size()) || index != std::floor(index)) return std::nullopt;
    return kStyles[static_cast<std::size_t>(index)];
}

ProgramOptions LoadProgramOptions(const Settings& settings, UserInterface& user,
                                  const Texts& texts) {
    ProgramOptions options;
    options.DisplayTimeFrom = settings.Get("DisplayTimeFrom");
    options.DisplayTimeTo = settings.Get("DisplayTimeTo");
    options.NotifyUserOfNewFiles = settings.IsYes("NotifyUserOfNewFiles");
    options.Fahrenheit = settings.Number("DisplayTemperatureUnits") != 0;
    options.GraphType = settings.Index("GraphType", 3);
    options.StartWeekOn = settings.Index("StartWeekOn", 2);
    options.StartViewDayOn = settings.Index("StartViewDayOn", 7);
    options.UseDataMarkers = settings.IsYes("UseDataMarkers");
    options.ScaleYAxisOnZoom = settings.IsYes("ScaleYAxisOnZoom");
    options.AutoClear = settings.IsYes("AutoClear");
    options.DataAccessIsGlobal = settings.IsYes("DataAccessIsGlobal");
    options.OpenFormFullScreen = settings.IsYes("OpenFormFullScreen");
    options.BackgroundColor = settings.Color("BackgroundColor");
    options.BackgroundGraphClr = settings.Color("BackgroundGraphClr");
    options.TitleClr = settings.Color("TitleClr");
    options.AxesLblClr = settings.Color("AxesLblClr");
    options.UseLblColors = settings.IsYes("UseLblColors");
    // The one flag here compared with NO: an odd value shows the user's directory as chosen.
    options.UserDirectoryActive = settings.IsNotNo("UserSpecifiedDirectoryActive");
    options.UserSpecDir = settings.Get("UserSpecDir");
    const double cursor = settings.Number("CursorType");
    options.CursorStyle = CursorStyleOf(cursor);
    // -1 selects no button: the odd value stays stored until the user chooses
    options.CursorType = options.CursorStyle ? static_cast<int>(cursor) : -1;
    if (!options.CursorStyle) {
        user.ShowMessage({texts.Find(data_texts::kProgramTitle),
                          texts.Fill(data_texts::kCursorNotMapped, {FormatNumber(cursor)})});
    }
    options.ScalePrint = settings.IsYes("ScalePrint");

    options.UpperToleranceLimit = settings.Number("UpperToleranceLimit");
    options.UseToleranceCurve = settings.IsYes("UseToleranceCurve");
    options.MarkOutOfToleranceInRed = settings.IsYes("MarkOutOfToleranceInRed");
    return options;
}

}  // namespace brask
