// The one table of all settings: key, form of the value, default, meaning.
#pragma once

#include <span>
#include <string_view>

#include "platform/Texts.h"

namespace brask {

// "Flag" YES or NO, exact; "Number" decimal; "Index" 0-based decimal; "Text"; "Colour" "&H" or
// "&h" with hexadecimal digits blue-green-red, or RR-GG-BB.
enum class SettingForm { kFlag, kNumber, kIndex, kText, kColour };

struct SettingRow {
    const char* Key;
    SettingForm Form;
    const char* Default;
    // one line for `brask settings list`
    TextRow Meaning;
};

// The known keys, in the order of their description. "EndViewDayOn" and the colour entries
// ("PlotLineColor" and a number) have defaults that depend on other settings: see Settings.
std::span<const SettingRow> KnownSettings();
// The program's own keys, kept in a section of their own.
std::span<const SettingRow> OwnSettings();

// "Flag", "Number", "Index", "Text", "Colour".
std::string_view FormName(SettingForm form);

// Whether the key is "PlotLineColor" followed by a number from 1 on, without leading zeros.
bool IsPlotLineColorKey(std::string_view key);

}  // namespace brask
