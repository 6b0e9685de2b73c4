// The ordered table of line colours that the curves of the plot take in turn.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/ColorValue.h"

namespace brask {

class Settings;

class PlotColors {
  public:
    // A table as long as this is already no use to anyone; a longer stored one is cut in memory.
    static constexpr int kLongest = 1000;

    // The key of entry `number`, from 1.
    static std::string Key(int number) { return "PlotLineColor" + std::to_string(number); }
    // The stored length of the table; 0 when the store holds no table.
    static int StoredCount(const Settings& settings);

    // Writes the nine default colours when the stored length is 0. An odd length (negative, a
    // fraction) stays as it is.
    static void Initialise(Settings& settings);
    // Writes the nine defaults in any case.
    static void RestoreDefaults(Settings& settings);
    // Stores one entry; a doubled "&" in front becomes one.
    static void SaveEntry(Settings& settings, int number, std::string_view value);

    // Reads the table from the store. An empty one is served by the nine defaults, in memory, so
    // that a curve always has a colour.
    void Load(const Settings& settings);

    int Count() const { return static_cast<int>(colors_.size()); }
    // The colour of a curve of period `period`, from 1; colours repeat from the table's start.
    // Needs a Load before.
    ColorValue CurveColor(int period) const;

  private:
    std::vector<ColorValue> colors_;
};

}  // namespace brask
