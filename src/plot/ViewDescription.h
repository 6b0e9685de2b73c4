// What is in view and what is selected, in words: for the status bar, and for those who cannot see
// the plot.
#pragma once

#include <string>

#include "data/DataSet.h"
#include "data/TemperatureUnit.h"
#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PlotOptions.h"

namespace brask {

// "from - to" of the visible X range: time stamps, times of day, or names of days with times of
// day.
std::string VisibleRangeText(const AxisRange& range, GraphType layout, int startWeekOn,
                             const UserLocale& locale);

// Time, gas and temperature of one reading of the data set.
std::string SelectedReadingText(const DataSet& data, std::size_t reading,
                                const TemperatureUnit& unit, const Texts& texts);

}  // namespace brask
