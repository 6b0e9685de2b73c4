#include "data/Settings.h"

#include <algorithm>
#include <cmath>

#include "data/NumberText.h"
#include "data/PlotColors.h"
#include "data/SettingsTable.h"
#include "platform/AsciiText.h"

namespace brask {
namespace {

const SettingRow* FindRow(std::span<const SettingRow> rows, std::string_view key) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [key](const SettingRow& row) { return row.Key == key; });
    return found == rows.end() ? nullptr : &*found;
}

// The table editor composes "&" and a text that begins with "&h".
void RemoveDoubledAmpersands(std::string& value) {
    for (auto at = value.find("&&"); at != std::string::npos; at = value.find("&&")) {
        value.erase(at, 1);
    }
}

}  // namespace

Settings::Settings(SettingsStore& known, SettingsStore& own, const UserLocale& locale,
                   FailureReport report)
    : known_(known), own_(own), locale_(locale), report_(std::move(report)) {}

bool Settings::IsKnown(std::string_view key) {
    return FindRow(KnownSettings(), key) != nullptr || FindRow(OwnSettings(), key) != nullptr ||
           IsPlotLineColorKey(key);
}

SettingsStore& Settings::StoreOf(const std::string& key) const {
    return FindRow(OwnSettings(), key) != nullptr ? own_ : known_;
}

std::string Settings::Default(const std::string& key) const {
    if (key == "EndViewDayOn") return LastDayOfWeek();
    if (IsPlotLineColorKey(key)) return "0";
    for (const auto rows : {KnownSettings(), OwnSettings()}) {
        if (const SettingRow* row = FindRow(rows, key)) return row->Default;
    }
    return "";
}

// Saturday for weeks that start on Sunday, Sunday for those that start on Monday.
std::string Settings::LastDayOfWeek() const {
    return locale_.DayNames()[Index("StartWeekOn", 2) == 0 ? 6 : 0];
}

std::string Settings::Get(const std::string& key) const {
    return StoreOf(key).Get(key, Default(key));
}

void Settings::Save(const std::string& key, std::string_view value) {
    std::string stored(Trimmed(value));
    // The repair is made here, so that every way to store such a colour gets it.
    if (IsPlotLineColorKey(key)) RemoveDoubledAmpersands(stored);
    // Callers go on either way: a full disk must not keep anyone from looking at data.
    const Status saved = StoreOf(key).Save(key, stored);
    if (!saved.Ok()) report_(key, saved.Why().Reason);
}

double Settings::Number(const std::string& key) const { return LeadingNumber(Get(key)); }

int Settings::Index(const std::string& key, int count) const {
    return static_cast<int>(std::clamp(std::trunc(Number(key)), 0.0, count - 1.0));
}

ColorValue Settings::Color(const std::string& key) const { return ParseColor(Get(key)); }

std::vector<std::string> Settings::Keys() const {
    std::vector<std::string> keys;
    for (const SettingRow& row : KnownSettings()) {
        keys.emplace_back(row.Key);
        if (keys.back() != "NumPlotColorsDefined") continue;
        const int count = PlotColors::StoredCount(*this);
        for (int number = 1; number <= count; ++number) keys.push_back(PlotColors::Key(number));
    }
    for (const SettingRow& row : OwnSettings()) keys.emplace_back(row.Key);
    return keys;
}

}  // namespace brask
