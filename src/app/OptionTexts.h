// Captions of the two option pages.
#pragma once

#include "platform/Texts.h"

namespace brask::option_texts {

// Letters must differ from those of menus and tabs; those of a group are led to by its first.
// Left column of the graph options. Each group begins with the title of its frame.
inline constexpr auto kGraphType = TextRow("options", "Graph Type");
inline constexpr auto kContinuousGraph = TextRow("options", "Co&ntinuous Graph");
inline constexpr auto kOverlapDays = TextRow("options", "Overlap Da&ys");
inline constexpr auto kOverlapWeeks = TextRow("options", "Overlap &Weeks");

// The options are read together with their boxes: "Display Dates from ... to ...".
inline constexpr auto kDisplayPeriod = TextRow("options", "Display Period");
inline constexpr auto kDisplayAllData = TextRow("options", "Display &All Data");
inline constexpr auto kDisplayDates = TextRow("options", "Display Da&tes from");
inline constexpr auto kDisplayTimes = TextRow("options", "Display T&imes from");
inline constexpr auto kDisplayDays = TextRow("options", "Display Days f&rom");
// Stands between the two boxes of a period.
inline constexpr auto kTo = TextRow("options", "to");
// Names of the boxes for those who hear them, in the order of the rows.
inline constexpr auto kFirstDate = TextRow("options", "First date to display");
inline constexpr auto kLastDate = TextRow("options", "Last date to display");
inline constexpr auto kFirstTime = TextRow("options", "First time of day to display");
inline constexpr auto kLastTime = TextRow("options", "Last time of day to display");
inline constexpr auto kFirstDay = TextRow("options", "First day to display");
inline constexpr auto kLastDay = TextRow("options", "Last day to display");
// %1 is the visible range.
inline constexpr auto kShownNow = TextRow("options", "Shown now: %1");
inline constexpr auto kSetDisplayPeriod = TextRow("options", "&Set Display Period");

// Its two options are the locale's own words for Sunday and Monday.
inline constexpr auto kWeekStartsOn = TextRow("options", "Week Starts On");

inline constexpr auto kTemperature = TextRow("options", "Temperature");
// Spelled as users have always read it.
inline constexpr auto kFahrenheit = TextRow("options", "Farenheit (°F)");
inline constexpr auto kCelsius = TextRow("options", "Celsius (°C)");

// Middle column. The order of the cursors is that of the stored numbers.
inline constexpr auto kCursor = TextRow("options", "Selected Point Cursor");
// A doubled "&" is shown as one.
inline constexpr auto kCursorLines = TextRow("options", "Horizontal && Vertical &Lines");
inline constexpr auto kCursorSquare = TextRow("options", "S&quare");
inline constexpr auto kCursorVertical = TextRow("options", "Vertical Line");
inline constexpr auto kCursorHorizontal = TextRow("options", "Horizontal Line");
inline constexpr auto kCursorCircle = TextRow("options", "Circle");
inline constexpr auto kCursorDiamond = TextRow("options", "Diamond");
inline constexpr auto kCursorBox = TextRow("options", "Filled &Box");

// Upper limits are gas limits, in ppm.
inline constexpr auto kUpperLimits = TextRow("options", "Upper Limits");
inline constexpr auto kDisplayUpperLimits = TextRow("options", "Display Upper Limits");
inline constexpr auto kMarkWide = TextRow("options", "Mark Out of Limit Points with Wide Line");
inline constexpr auto kSetUpperLimit = TextRow("options", "SetUpperLimit");

inline constexpr auto kDrawing = TextRow("options", "Drawing and Printing");
inline constexpr auto kMarkPoints = TextRow("options", "Mar&k Data Points on Graph");
inline constexpr auto kScaleOnZoom = TextRow("options", "Scale Y A&xis when zooming");
inline constexpr auto kScalePrint =
    TextRow("options", "Scale Graph To Fit Paper Size When Printed");

// Right column: colours of the plot's parts, then those of its curves.
inline constexpr auto kGraphColors = TextRow("options", "Graph Colors");
inline constexpr auto kAxesBackground = TextRow("options", "Axes Background");
inline constexpr auto kGraphBackground = TextRow("options", "Graph Background");
inline constexpr auto kTitle = TextRow("options", "Title");
inline constexpr auto kAxesLabels = TextRow("options", "X/Y Axes Labels");
inline constexpr auto kLineColorsForLabels = TextRow("options", "Use Graph Line Colors for Labels");
inline constexpr auto kRestoreColors = TextRow("options", "Restore to Default");

inline constexpr auto kLineColors = TextRow("options", "Graph Line Color Sequence");
inline constexpr auto kColumnLine = TextRow("options", "Line");
inline constexpr auto kColumnRgb = TextRow("options", "R-G-B");
inline constexpr auto kColumnSample = TextRow("options", "Sample Color");
// %1 is the number of the colour that the button works on, from 1.
inline constexpr auto kInsertBefore = TextRow("options", "Insert Before Color %1");
inline constexpr auto kInsertAfter = TextRow("options", "Insert After Color %1");
inline constexpr auto kChangeColor = TextRow("options", "Change Color %1");
inline constexpr auto kCopyColor = TextRow("options", "Copy Color %1 to ClipBoard");
inline constexpr auto kDeleteColor = TextRow("options", "Delete Color %1");
// The editor's own clipboard, which holds one colour.
inline constexpr auto kClipboard = TextRow("options", "Clipboard");
inline constexpr auto kClipboardColor = TextRow("options", "Color %1");
inline constexpr auto kRestoreLineColors = TextRow("options", "Restore Line Colors to Default");

// The page of the program's options, from top to bottom.
inline constexpr auto kProgram = TextRow("options", "Program");
inline constexpr auto kOpenMaximized = TextRow("options", "Open Program With Maximized Window");
inline constexpr auto kNotifyNewFiles =
    TextRow("options", "Display Message As Data Files Are Saved");
inline constexpr auto kAutoDelete =
    TextRow("options", "Delete Data From Talvex K42 If Data Is Received With No Errors");
inline constexpr auto kDataDirectory = TextRow("options", "Data Directory");
inline constexpr auto kUserDirectory = TextRow("options", "Use User Directory");
inline constexpr auto kSystemDirectory = TextRow("options", "Use System Directory");
inline constexpr auto kBrowse = TextRow("options", "Browse");
inline constexpr auto kDataAccess = TextRow("options", "Data Access");
// %1 is the shared directory, or the user's name and %2 the user's directory.
inline constexpr auto kAllUsers = TextRow("options", "All Users (%1)");
inline constexpr auto kOneUser = TextRow("options", "User %1 (%2)");
// The titles of frames and the labels of their boxes.
inline constexpr auto kInstrumentLink = TextRow("options", "Instrument Link");
inline constexpr auto kInstrumentHint = TextRow("options", "irda, or tcp:HOST:PORT");
inline constexpr auto kHandheld = TextRow("options", "Handheld");
// Tells the button from the one for the data directory where only names are read out.
inline constexpr auto kHandheldBrowse = TextRow("options", "Handheld Browse");
// Stands in the box while it is empty.
inline constexpr auto kHandheldHint =
    TextRow("options", "dir: and the folder that the handheld or its card appears in");

}  // namespace brask::option_texts
