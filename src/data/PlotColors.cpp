#include "data/PlotColors.h"

#include <algorithm>
#include <array>

#include "data/Settings.h"

namespace brask {
namespace {

// Stored texts: green, blue, yellow, cyan, olive, magenta, dark green, navy, purple.
constexpr std::array<const char*, 9> kDefaults = {"&HFF00",   "&HFF0000", "&HFFFF",
                                                  "&HFFFF00", "&H008080", "&HFF00FF",
                                                  "&H00C000", "&H800000", "&H800080"};

}  // namespace

int PlotColors::StoredCount(const Settings& settings) {
    return static_cast<int>(
        std::clamp(settings.Number("NumPlotColorsDefined"), 0.0, 1.0 * kLongest));
}

void PlotColors::Initialise(Settings& settings) {
    if (settings.Number("NumPlotColorsDefined") == 0) RestoreDefaults(settings);
}

void PlotColors::RestoreDefaults(Settings& settings) {
    for (std::size_t i = 0; i < kDefaults.size(); ++i) {
        SaveEntry(settings, static_cast<int>(i) + 1, kDefaults[i]);
    }
    // Last: the length must not promise entries that are not stored yet.
    settings.Save("NumPlotColorsDefined", std::to_string(kDefaults.size()));
}

void PlotColors::SaveEntry(Settings& settings, int number, std::string_view value) {
    settings.Save(Key(number), value);
}

void PlotColors::Load(const Settings& settings) {
    colors_.clear();
    const int count = StoredCount(settings);
    for (int number = 1; number <= count; ++number) colors_.push_back(settings.Color(Key(number)));
    if (!colors_.empty()) return;
    for (const char* text : kDefaults) colors_.push_back(ParseColor(text));
}

ColorValue PlotColors::CurveColor(int period) const {
    return colors_[static_cast<std::size_t>(period - 1) % colors_.size()];
}

}  // namespace brask
