// Colours as settings hold them: a 24-bit number, blue x 65536 + green x 256 + red, in three
// spellings. Green, for example, is 65280, "&HFF00" or "00-FF-00".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brask {

struct ColorValue {
    // Kept whole, though only the low 24 bits are a colour: a stored number of more bits is no
    // error.
    std::uint32_t Number = 0;

    // each 0..255
    int Red() const { return static_cast<int>(Number & 0xFF); }
    int Green() const { return static_cast<int>((Number >> 8) & 0xFF); }
    int Blue() const { return static_cast<int>((Number >> 16) & 0xFF); }
    bool operator==(const ColorValue&) const = default;
};

inline constexpr ColorValue kBlack{0x000000};
inline constexpr ColorValue kWhite{0xFFFFFF};

// Reads "&H" or "&h" with hexadecimal digits, RR-GG-BB, or a decimal number. Black for any text
// that it cannot read; never fails.
ColorValue ParseColor(std::string_view text);
// "&h" and six upper-case hexadecimal digits, blue first: green is "&h00FF00".
std::string ColorToHexText(ColorValue color);
// "RR-GG-BB". Two hexadecimal digits each: the form that people read and that documents hold.
std::string ColorToRgbText(ColorValue color);
// "&H" and the digits without leading zeros: "&HFF00", "&H0".
std::string DefaultColorText(ColorValue color);

}  // namespace brask
