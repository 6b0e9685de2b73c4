#include "data/ColorValue.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

#include "data/NumberText.h"

namespace brask {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

// The colour number of a whole text "&H..." (either case); nothing when it is none.
std::optional<std::uint32_t> HexNumber(std::string_view text) {
    const bool prefixed = text.size() > 2 && text[0] == '&' && (text[1] == 'h' || text[1] == 'H');
    if (!prefixed) return std::nullopt;
    text.remove_prefix(2);
    std::uint32_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    // No leading part counts: "&HFFzz" is a slip of the hand, and half a colour would hide it.
    if (error != std::errc() || stop != text.data() + text.size()) return std::nullopt;
    return number;
}

std::string LastTwo(std::string_view field) {
    // "1-2-3" is a colour, too: short fields are filled from the left, long ones keep their end.
    const std::string padded = "00" + std::string(field);
    return padded.substr(padded.size() - 2);
}

std::optional<std::uint32_t> RgbNumber(std::string_view text) {
    std::vector<std::string_view> fields;
    for (;;) {
        const auto dash = text.find('-');
        fields.push_back(text.substr(0, dash));
        if (dash == std::string_view::npos) break;
        text.remove_prefix(dash + 1);
    }
    if (fields.size() != 3) return std::nullopt;
    return HexNumber("&H" + LastTwo(fields[2]) + LastTwo(fields[1]) + LastTwo(fields[0]));
}

std::optional<std::uint32_t> DecimalNumber(std::string_view text) {
    const auto number = ParseNumber(text);
    // rounded half to even first, then it must fit 32 bits
    if (!number || std::abs(std::nearbyint(*number)) > 2147483647.0) return std::nullopt;
    return static_cast<std::uint32_t>(std::llrint(*number));
}

std::string SixDigits(ColorValue color) {
    std::string digits;
    for (int shift = 20; shift >= 0; shift -= 4) digits += kDigits[(color.Number >> shift) & 0xF];
    return digits;
}

}  // namespace

ColorValue ParseColor(std::string_view text) {
    // The prefix may stand anywhere for the text to count as hexadecimal, though only a text that
    // begins with it can be read: all others become black, never a decimal number by chance.
    const bool hex =
        text.find("&h") != std::string_view::npos || text.find("&H") != std::string_view::npos;
    if (hex) return {HexNumber(text).value_or(0)};
    if (text.find('-') != std::string_view::npos) return {RgbNumber(text).value_or(0)};
    return {DecimalNumber(text).value_or(0)};
}

std::string ColorToHexText(ColorValue color) { return "&h" + SixDigits(color); }

std::string ColorToRgbText(ColorValue color) {
    const std::string digits = SixDigits(color);
    return digits.substr(4, 2) + "-" + digits.substr(2, 2) + "-" + digits.substr(0, 2);
}

std::string DefaultColorText(ColorValue color) {
    const std::string digits = SixDigits(color);
    const auto first = digits.find_first_not_of('0');
    return "&H" + (first == std::string::npos ? "0" : digits.substr(first));
}

}  // namespace brask
