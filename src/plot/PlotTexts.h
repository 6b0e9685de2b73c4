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

}  // namespace brask::plot_texts
