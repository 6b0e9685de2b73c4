#include "plot/PlotOptions.h"

namespace brask {

PlotOptions ReadPlotOptions(const Settings& settings, const TemperatureUnit& unit) {
    PlotOptions options;
    // Index never leaves the range, so the cast names a layout whatever is stored
    options.Layout = static_cast<GraphType>(settings.Index("GraphType", 3));
    options.StartWeekOn = settings.Index("StartWeekOn", 2);
    options.MarkDataPoints = settings.IsYes("UseDataMarkers");
    options.TemperatureLabel = unit.Label();
    options.Colors.Load(settings);
    options.ColorLabelsLikeLines = settings.IsYes("UseLblColors");
    options.AxisLabels = settings.Color("AxesLblClr");
    options.Background.Chart = settings.Color("BackgroundColor");
    options.Background.Inside = settings.Color("BackgroundGraphClr");
    options.Background.Title = settings.Color("TitleClr");
    // the file's name stays stored while the picture is switched off
    if (settings.IsYes("UseBackgroundImage")) {
        options.Background.PictureFile = settings.Get("BackgroundImageFile");
    }
    options.Background.Stretched = settings.IsYes("BackgroundStretch");
    return options;
}

}  // namespace brask
