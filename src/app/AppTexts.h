// Texts of the main window and its services. Captions of menus and buttons stand in MenuTable.cpp
// and ToolbarTable.cpp, those of the option pages in OptionTexts.h.
#pragma once

#include "platform/Texts.h"

namespace brask::app_texts {

inline constexpr auto kCaptionNoData = TextRow("app", "%1 (no data loaded)");
inline constexpr auto kCaptionFile = TextRow("app", "%1   File:%2");
inline constexpr auto kButtonNotImplemented =
    TextRow("app", "Command For Button %1\r\nIs Not Implemented Yet");
inline constexpr auto kNoDataYet =
    TextRow("app", "There is No Data Yet - Download Data or Open a Data File");

inline constexpr auto kOpenTitle = TextRow("app", "Select Talvex© K42 Data File To Read");
inline constexpr auto kOpenFilter = TextRow("app", "All Files|*.*|CSV Files|*.csv");
inline constexpr auto kSaveTitle = TextRow("app", "Save Data as");
inline constexpr auto kSaveFilter = TextRow("app", "CSV File|*.csv|All Files|*.*");
inline constexpr auto kDataSaved = TextRow("app", "Data saved: %1");

inline constexpr auto kHeaders =
    TextRow("app",
            "File: %1\r\nInstrument: %2\r\nSerial number: %3\r\nDate: %4\r\nGas: %5\r\n"
            "First reading: %6\r\nLast reading: %7\r\nReadings: %8");

inline constexpr auto kTabGraph = TextRow("app", "&Graph");
inline constexpr auto kTabData = TextRow("app", "&Data");
inline constexpr auto kTabGraphOptions = TextRow("app", "Graph O&ptions");
inline constexpr auto kTabProgramOptions = TextRow("app", "Progra&m Options");

inline constexpr auto kAdviceTitle = TextRow("app", "Nothing to show yet");
inline constexpr auto kAdvice =
    TextRow("app",
            "Open a data file, or get the readings from the instrument or the handheld. A data "
            "file can also be dropped on this window.");
inline constexpr auto kRecentHeading = TextRow("app", "Recent files");
inline constexpr auto kClearList = TextRow("app", "&Clear List");
inline constexpr auto kFindLabel = TextRow("app", "Date and &Time:");
inline constexpr auto kFindPoint = TextRow("app", "Find P&oint");

inline constexpr auto kColumnResult = TextRow("app", "Result");
inline constexpr auto kColumnTime = TextRow("app", "DATE / TIME");
inline constexpr auto kColumnGas = TextRow("app", "GAS (ppm)");
inline constexpr auto kColumnTemperature = TextRow("app", "Temp (%1)");
inline constexpr auto kColumnMarkers = TextRow("app", "Marker Info");
inline constexpr auto kGridCount = TextRow("app", "Readings: %1");
inline constexpr auto kFirst = TextRow("app", "&First");
inline constexpr auto kPrevious = TextRow("app", "Pre&vious");
inline constexpr auto kNext = TextRow("app", "&Next");
inline constexpr auto kLast = TextRow("app", "&Last");
inline constexpr auto kPrintData = TextRow("app", "&Print Data");

inline constexpr auto kFillingGrid = TextRow("app", "Filling Data Grid");
inline constexpr auto kReadingFile = TextRow("app", "Reading Data File");
inline constexpr auto kVerifyingData = TextRow("app", "Verifying Data");
inline constexpr auto kResults = TextRow("app", "%1 Results");
inline constexpr auto kCancel = TextRow("app", "Cancel");
inline constexpr auto kNoMoreMessages =
    TextRow("app", "Do not show further messages for this file");

inline constexpr auto kUsageAbout = TextRow("app", "Shows the readings of a gas analyser.");
inline constexpr auto kUsageFile = TextRow("app", "data file to open");
inline constexpr auto kUsageSettings =
    TextRow("app", "keep settings in this INI file instead of the user's own store");
inline constexpr auto kUsageRoot = TextRow("app", "base directory of the data directories");
inline constexpr auto kUsageOrder = TextRow("app", "override the date order: mdy, dmy or ymd");
inline constexpr auto kUsageBadOrder = TextRow("app", "--date-order takes mdy, dmy or ymd");
inline constexpr auto kUsageOneFile = TextRow("app", "one FILE at most");

inline constexpr auto kStatusReadings = TextRow("app", "Readings: %1");
inline constexpr auto kStatusRejected = TextRow("app", "Readings: %1, rejected lines: %2");

}  // namespace brask::app_texts
