// Any bytes as a settings file and as the values in it: no crash, and what is written reads back.
#include <cmath>
#include <string>

#include "FuzzInput.h"
#include "data/ColorValue.h"
#include "data/DateTime.h"
#include "data/NumberText.h"
#include "platform/IniFile.h"

namespace brask {
namespace {

void CheckFile(std::string_view text) {
    const auto parsed = IniFile::Parse(text);
    if (!parsed.Ok()) {
        Require(!parsed.Why().Reason.empty());
        return;
    }
    const std::string written = parsed.Value().Text();
    const auto again = IniFile::Parse(written);
    Require(again.Ok() && again.Value().Text() == written);
}

void CheckSet(std::string_view text) {
    const auto middle = text.size() / 2;
    const std::string key(text.substr(0, middle));
    const std::string value(text.substr(middle));
    IniFile file;
    file.Set("S", "other", "kept");
    file.Set("S", key, value);
    const auto again = IniFile::Parse(file.Text());
    Require(again.Ok() && again.Value().Get("S", key) == value);
    Require(key == "other" || again.Value().Get("S", "other") == "kept");
}

void CheckNumbers(std::string_view text) {
    const double leading = LeadingNumber(text);
    Require(std::isfinite(leading));
    const auto number = ParseNumber(text);
    if (!number) return;
    Require(*number == leading);
    Require(ParseNumber(FormatNumber(*number)) == number);
    Require(ParseNumber(FormatTenths(*number)).has_value());
}

void CheckColors(std::string_view text) {
    const ColorValue color{ParseColor(text).Number & 0xFFFFFF};
    Require(ParseColor(ColorToHexText(color)) == color);
    Require(ParseColor(ColorToRgbText(color)) == color);
    Require(ParseColor(DefaultColorText(color)) == color);
}

void CheckDates(std::string_view text) {
    for (int order = 0; order < 3; ++order) {
        const auto dateOrder = static_cast<LongDateOrder>(order);
        const auto serial = ParseDateTime(ToLocaleDateText(text, dateOrder), dateOrder);
        if (serial) Require(ParseDateTime(FormatReadingTime(*serial), dateOrder) == serial);
    }
    const auto time = ParseTimeOfDay(text);
    Require(!time || (*time >= 0 && *time < 1));
}

}  // namespace
}  // namespace brask

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace brask;
    const std::string_view text = FuzzText(bytes, size);
    CheckFile(text);
    CheckSet(text);
    CheckNumbers(text);
    CheckColors(text);
    CheckDates(text);
    return 0;
}
