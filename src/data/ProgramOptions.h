// What the stored options say when the program starts, read in one fixed order.
#pragma once

#include <optional>
#include <string>

#include "data/ColorValue.h"
#include "data/Settings.h"
#include "data/WindowsVersion.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// One member per option, in the order of reading.
struct ProgramOptions {
    std::string DisplayTimeFrom;
    std::string DisplayTimeTo;
    bool NotifyUserOfNewFiles = true;
    bool Fahrenheit = false;
    // 0 continuous, 1 days over each other, 2 weeks over each other
    int GraphType = 0;
    // 0 Sunday, 1 Monday
    int StartWeekOn = 0;
    int StartViewDayOn = 0;
    bool UseDataMarkers = true;
    bool ScaleYAxisOnZoom = false;
    bool AutoClear = false;
    bool DataAccessIsGlobal = true;
    bool OpenFormFullScreen = false;
    ColorValue BackgroundColor = kWhite;
    ColorValue BackgroundGraphClr = kWhite;
    ColorValue TitleClr = kBlack;
    ColorValue AxesLblClr = kBlack;
    bool UseLblColors = true;
    bool UserDirectoryActive = false;
    std::string UserSpecDir;
    int CursorType = 1;                  // index of the option button
    std::optional<int> CursorStyle = 9;  // the chart's code; nothing when the index has none
    bool ScalePrint = true;
    // read by their own routine
    double UpperToleranceLimit = 1000;  // ppm
    bool UseToleranceCurve = false;
    bool MarkOutOfToleranceInRed = false;
};

// Reads all options. A cursor index without a cursor is reported with a message. Called once, at
// start-up: from then on each control stores its own option when the user changes it.
ProgramOptions LoadProgramOptions(const Settings& settings, UserInterface& user,
                                  const Texts& texts);

// The chart's cursor style code of option button `index`; nothing for any other index.
std::optional<int> CursorStyleOf(double index);

}  // namespace brask
