// Texts of the main window and its services. Captions of menus and buttons stand in MenuTable.cpp
// and ToolbarTable.cpp, those of the option pages in OptionTexts.h.
#pragma once

#include "platform/Texts.h"

namespace brask::app_texts {

// The window's caption: the program's title, and the base name of the file.
inline constexpr auto kCaptionNoData = TextRow("app", "%1 (no data loaded)");
inline constexpr auto kCaptionFile = TextRow("app", "%1   File:%2");
// Answer to a toolbar key that no row of the table has; %1 is the key.
inline constexpr auto kButtonNotImplemented =
    TextRow("app", "Command For Button %1\r\nIs Not Implemented Yet");
// Answer to a click on the grid's tab without readings.
inline constexpr auto kNoDataYet =
    TextRow("app", "There is No Data Yet - Download Data or Open a Data File");

// File dialogs. Filters are name and pattern in turn, parted by "|"; the first is chosen.
inline constexpr auto kOpenTitle = TextRow("app", "Select Talvex© K42 Data File To Read");
inline constexpr auto kOpenFilter = TextRow("app", "All Files|*.*|CSV Files|*.csv");
inline constexpr auto kSaveTitle = TextRow("app", "Save Data as");
inline constexpr auto kSaveFilter = TextRow("app", "CSV File|*.csv|All Files|*.*");
// A message, or a notice in the status bar; %1 is what was typed or stored.
inline constexpr auto kBadInstrument =
    TextRow("app", "%1 is no address of an instrument: say \"irda\" or \"tcp:HOST:PORT\"");
inline constexpr auto kHandheldFolder =
    TextRow("app", "Select The Folder Of The Handheld Or Its Card");
// A notice in the status bar; %1 is what was typed.
inline constexpr auto kBadHandheld =
    TextRow("app", "%1 is no address of a handheld: say \"rapi\" or \"dir:\" and a folder");
// A notice when a retrieval has ended: what became of a file, and of how many others there is
// something to tell.
inline constexpr auto kMoreKept = TextRow("app", "%1; the log tells of %2 more files");
// A notice in the status bar; %1 is the full path.
inline constexpr auto kDataSaved = TextRow("app", "Data saved: %1");

// The message about the loaded file, a line for each thing that it says of itself.
inline constexpr auto kHeaders =
    TextRow("app",
            "File: %1\r\nInstrument: %2\r\nSerial number: %3\r\nDate: %4\r\nGas: %5\r\n"
            "First reading: %6\r\nLast reading: %7\r\nReadings: %8");

// For the log: a download's file stands on the plot.
inline constexpr auto kLogViewIsBack = TextRow("app", "Back From SetViewData(1)");

// The tabs. Their letters must differ from those of the menu bar, since both listen to Alt.
inline constexpr auto kTabGraph = TextRow("app", "&Graph");
inline constexpr auto kTabData = TextRow("app", "&Data");
inline constexpr auto kTabGraphOptions = TextRow("app", "Graph O&ptions");
inline constexpr auto kTabProgramOptions = TextRow("app", "Progra&m Options");

// The plot's page without readings.
inline constexpr auto kAdviceTitle = TextRow("app", "Nothing to show yet");
inline constexpr auto kAdvice =
    TextRow("app",
            "Open a data file, or get the readings from the instrument or the handheld. A data "
            "file can also be dropped on this window.");
inline constexpr auto kRecentHeading = TextRow("app", "Recent files");
inline constexpr auto kClearList = TextRow("app", "&Clear List");
// What the plot and its scroll bar are called for those who hear them.
inline constexpr auto kPlotName = TextRow("app", "Plot of the readings");
inline constexpr auto kScrollName = TextRow("app", "Visible part of the plot");
// The description of the plot: readout of the selected point, visible range.
inline constexpr auto kPlotDescription = TextRow("app", "%1. Visible range: %2");
// Captions of the command that switches the axis: each names the axis that the next use activates.
inline constexpr auto kActivateTemperature = TextRow("app", "Set Active &Y Axis To Temperature");
inline constexpr auto kActivateGas = TextRow("app", "Set Active &Y Axis To Gas");
// Tool tips of the button for marking the single readings, by what its next use does.
inline constexpr auto kDoNotMarkPoints = TextRow("app", "Do Not Mark Individual Data Points");
inline constexpr auto kMarkPoints = TextRow("app", "Mark Individual Data Points");
// The row below the plot.
inline constexpr auto kFindLabel = TextRow("app", "Date and &Time:");
inline constexpr auto kFindPoint = TextRow("app", "Fi&nd Point");

// Headings of the grid; %1 is the unit, °C or °F.
inline constexpr auto kColumnResult = TextRow("app", "Result");
inline constexpr auto kColumnTime = TextRow("app", "DATE / TIME");
inline constexpr auto kColumnGas = TextRow("app", "GAS (ppm)");
inline constexpr auto kColumnTemperature = TextRow("app", "Temp (%1)");
inline constexpr auto kColumnMarkers = TextRow("app", "Marker Info");
// The line above the grid.
inline constexpr auto kGridCount = TextRow("app", "Readings: %1");
inline constexpr auto kFirst = TextRow("app", "&First");
inline constexpr auto kPrevious = TextRow("app", "Pre&vious");
inline constexpr auto kNext = TextRow("app", "&Next");
inline constexpr auto kLast = TextRow("app", "&Last");
inline constexpr auto kPrintData = TextRow("app", "&Print Data");

// The progress window: one caption a mode, in the order of ProgressMode.
inline constexpr auto kFillingGrid = TextRow("app", "Filling Data Grid");
inline constexpr auto kReadingFile = TextRow("app", "Reading Data File");
inline constexpr auto kVerifyingData = TextRow("app", "Verifying Data");
// The count that was reported last; 0 at a standstill.
inline constexpr auto kResults = TextRow("app", "%1 Results");
inline constexpr auto kCancel = TextRow("app", "Cancel");
// The box below the message about a bad line; it holds for the load under way alone.
inline constexpr auto kNoMoreMessages =
    TextRow("app", "Do not show further messages for this file");

// Help and complaints of the command line, for standard output and standard error.
inline constexpr auto kUsageAbout = TextRow("app", "Shows the readings of a gas analyser.");
inline constexpr auto kUsageFile = TextRow("app", "data file to open");
inline constexpr auto kUsageSettings =
    TextRow("app", "keep settings in this INI file instead of the user's own store");
inline constexpr auto kUsageRoot = TextRow("app", "base directory of the data directories");
inline constexpr auto kUsageOrder = TextRow("app", "override the date order: mdy, dmy or ymd");
inline constexpr auto kUsageInstrument =
    TextRow("app", "link to the instrument: irda or tcp:HOST:PORT");
inline constexpr auto kUsageDownload = TextRow("app", "download from the instrument at once");
inline constexpr auto kUsageBadInstrument =
    TextRow("app", "--instrument takes irda or tcp:HOST:PORT");
inline constexpr auto kUsageHandheld = TextRow("app", "link to the handheld: rapi or dir:PATH");
inline constexpr auto kUsageBadHandheld = TextRow("app", "--handheld takes rapi or dir:PATH");
inline constexpr auto kUsageBadOrder = TextRow("app", "--date-order takes mdy, dmy or ymd");
inline constexpr auto kUsageOneFile = TextRow("app", "one FILE at most");

// The counts in the status bar; the second when lines were refused with a message.
inline constexpr auto kStatusReadings = TextRow("app", "Readings: %1");
inline constexpr auto kStatusRejected = TextRow("app", "Readings: %1, rejected lines: %2");

}  // namespace brask::app_texts
