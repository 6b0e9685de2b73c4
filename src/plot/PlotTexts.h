// Texts of the plot floor.
#pragma once

#include "platform/Texts.h"

namespace brask::plot_texts {

// Instrument and serial number.
inline constexpr auto kTitle = TextRow("plot", "VEK Talvex© K42, Instrument: %1,  S/N:%2");
// Time stamps of the first and the last reading.
inline constexpr auto kCaption = TextRow("plot", "Data Period From %1 to %2");
// Gas name; temperature unit.
inline constexpr auto kGasAxis = TextRow("plot", "%1 (ppm)");
inline constexpr auto kTemperatureAxis = TextRow("plot", "Temperature (%1)");
inline constexpr auto kDottedTemperatureAxis = TextRow("plot", "Temperature\r\n(dotted plot) (%1)");
// The readout of every plot until a reading is selected in it.
inline constexpr auto kNoPointSelected = TextRow("plot", "No Data Point Selected");

// The chart's own errors, and how they are shown: description and number.
inline constexpr auto kNoZoomHistory = TextRow("plot", "There is no zoom left to go back to.");
inline constexpr auto kViewTooNarrow = TextRow("plot", "The view cannot be made any smaller.");
inline constexpr auto kPlottingError = TextRow("plot", "%1\r\nPlotting Error # %2");
inline constexpr auto kNoFurtherZoomOut = TextRow("plot", "Cannot Zoom Any Further!");

// The line about the selected point: time stamp or day, value and unit or gas. The two lines of a
// day differ in what joins day and time; users tell gas from temperature by it.
inline constexpr auto kTemperaturePoint = TextRow("plot", "%1, Temperature=%2%3");
inline constexpr auto kGasPoint = TextRow("plot", "%1, %2=%3 ppm");
inline constexpr auto kDayTemperaturePoint = TextRow("plot", "%1 %2, Temperature=%3%4");
inline constexpr auto kDayGasPoint = TextRow("plot", "%1 at %2, %3 ppm");
inline constexpr auto kWeekGasPoint = TextRow("plot", "%1, %2 ppm");
// No reading has the wanted time.
inline constexpr auto kDateNotLocated = TextRow("plot", "Date not Located");

// Both values of the selected reading, for the status bar.
inline constexpr auto kSelectedValues = TextRow("plot", "%1 (Gas: %2 ppm)  Temp: %3 %4");

// What is wrong with a text that was typed for a period or a range; %1 is the text.
inline constexpr auto kNotADate = TextRow("plot", "%1 is not a valid date");
inline constexpr auto kNotATime = TextRow("plot", "%1 is not a valid time");
inline constexpr auto kNotANumber = TextRow("plot", "%1 is not a number");
inline constexpr auto kNotInOrder = TextRow("plot", "The end must be later than the start");
inline constexpr auto kDaysNotInOrder =
    TextRow("plot", "The last day must not lie before the first day");
inline constexpr auto kRangeNotInOrder = TextRow("plot", "The maximum must be above the minimum");
// A start date for the grid: the entered text and the time stamp of the last reading.
inline constexpr auto kAfterLastDate =
    TextRow("plot", "Entered Date of %1\r\nis after last date of %2");

// The dialog that sets the ranges by hand; a caption is label, minimum and maximum.
inline constexpr auto kChangeScales = TextRow("plot", "Change Scales");
inline constexpr auto kScaleCaption = TextRow("plot", "%1 (%2 - %3)");
inline constexpr auto kScaleDates = TextRow("plot", "&Dates");
inline constexpr auto kScaleGas = TextRow("plot", "&Gas");
inline constexpr auto kScaleTemperature = TextRow("plot", "&Temperature");
inline constexpr auto kScaleFrom = TextRow("plot", "from");
inline constexpr auto kScaleTo = TextRow("plot", "to");
inline constexpr auto kOk = TextRow("plot", "&OK");
inline constexpr auto kCancel = TextRow("plot", "Cancel");

}  // namespace brask::plot_texts
