// The fast path of the reader: a data line exactly as the instrument writes it,
//
//     JAN-01-2003 00:05:12,    0.1,  26.1 CR LF
//
// time stamp in 20 characters, gas in 7, temperature in 6. The widths and every character are
// checked; whatever is not of this form is left to the general path, which gives the same values.
// The fields are taken eight characters at a time, as the bytes of one number.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "data/DateTime.h"

namespace brask {

struct FixedReading {
    double Time;     // serial
    double Gas;      // ppm
    double Celsius;  // °C
};

// Keeps the date of the line before, so each file takes a parser of its own.
class FixedLineParser {
  public:
    // Bytes of one line with its CR LF.
    static constexpr std::size_t kLineLength = 37;

    // Reads the line at `line`, where kLineLength bytes can be read. False when it is not of the
    // fixed form.
    bool Parse(const char* line, FixedReading& reading) {
        if (line[20] != ',' || line[28] != ',' || line[35] != '\r' || line[36] != '\n') {
            return false;
        }
        // ",ddddd.d" and ",dddd.d\r": the digits move together, to the high end of the eight bytes
        const std::uint64_t gas = EightAt(line + 20);
        const std::uint64_t celsius = EightAt(line + 28);
        int seconds = 0;
        if (line[26] != '.' || line[33] != '.' || !TimeOfDay(EightAt(line + 12), seconds) ||
            !Decimal((gas & 0x0000'FFFF'FFFF'FF00) << 8 | (gas & kHighestByte), 2, reading.Gas) ||
            !Decimal((celsius & 0x0000'00FF'FFFF'FF00) << 16 | (celsius << 8 & kHighestByte), 3,
                     reading.Celsius)) {
            return false;
        }
        // files are in time order, so the date is nearly always that of the line before
        if (std::memcmp(line, dateText_, sizeof dateText_) != 0 && !NewDate(line)) return false;
        reading.Time = day_ + seconds / kSecondsPerDay;
        return true;
    }

  private:
    static constexpr std::uint64_t kHighestByte = 0xFF00'0000'0000'0000;
    static constexpr std::uint64_t kEachByte = 0x0101'0101'0101'0101;

    // Eight characters, the first in the lowest byte.
    static std::uint64_t EightAt(const char* text) {
        static_assert(std::endian::native == std::endian::little,
                      "another byte order needs its bytes turned round here");
        std::uint64_t eight = 0;
        std::memcpy(&eight, text, sizeof eight);
        return eight;
    }

    // Whether every byte is 0 to 9.
    static bool AllDigits(std::uint64_t bytes) {
        return (((bytes + kEachByte * (0x7F - 9)) | bytes) & kEachByte * 0x80) == 0;
    }

    // The number of eight digits 0 to 9, the first in the lowest byte: neighbours join to pairs,
    // pairs to fours, fours to the whole.
    static std::uint64_t Joined(std::uint64_t digits) {
        digits = digits * 10 + (digits >> 8);
        constexpr std::uint64_t kPairs = 0x0000'00FF'0000'00FF;
        return ((digits & kPairs) * (100 + (std::uint64_t{1000000} << 32)) +
                ((digits >> 16) & kPairs) * (1 + (std::uint64_t{10000} << 32))) >>
               32;
    }

    // "hh:mm:ss".
    static bool TimeOfDay(std::uint64_t text, int& seconds) {
        constexpr std::uint64_t kColons = 0x0000'FF00'00FF'0000;
        if ((text & kColons) != (kEachByte * ':' & kColons)) return false;
        const std::uint64_t digits = (text & ~kColons) ^ (kEachByte * '0' & ~kColons);
        if (!AllDigits(digits)) return false;
        const std::uint64_t pairs = digits * 10 + (digits >> 8);
        const auto hours = static_cast<int>(pairs & 0xFF);
        const auto minutes = static_cast<int>((pairs >> 24) & 0xFF);
        const auto last = static_cast<int>((pairs >> 48) & 0xFF);
        seconds = hours * 3600 + minutes * 60 + last;
        return hours < 24 && minutes < 60 && last < 60;
    }

    // Blanks from byte `first` on, an optional "-", then digits up to byte 6 and the tenth in byte
    // 7; the bytes below `first` are 0. Up to six digits fit a double exactly, and one division
    // rounds as a full parse would.
    static bool Decimal(std::uint64_t text, int first, double& value) {
        const std::uint64_t notBlank =
            (text ^ kEachByte * ' ') & (~std::uint64_t{0} << (8 * first));
        int shift = std::countr_zero(notBlank) & ~7;  // down to the first that is no blank
        constexpr int kLastWhole = 48;
        if (shift > kLastWhole) return false;
        const bool negative = ((text >> shift) & 0xFF) == '-';
        if (negative && (shift += 8) > kLastWhole) return false;
        const std::uint64_t digits = (text ^ kEachByte * '0') & (~std::uint64_t{0} << shift);
        if (!AllDigits(digits)) return false;
        // negated behind the division, for a "-0.0" to stay one
        value = static_cast<double>(static_cast<std::int64_t>(Joined(digits))) / 10.0;
        if (negative) value = -value;
        return true;
    }

    // Takes over the date of this line; false, keeping the one before, when it is none of this
    // form.
    bool NewDate(const char* line) {
        const std::string_view text(line, sizeof dateText_);
        // three letters in front: a date of another form has its day where the month is looked for
        if (text[3] != '-' || text[6] != '-' || text[11] != ' ') return false;
        const auto date = ParseDateTime(text.substr(0, 11), LongDateOrder::kMonthDayYear);
        if (!date) return false;
        std::memcpy(dateText_, line, sizeof dateText_);
        day_ = *date;
        return true;
    }

    // The date of the line before, with the blank behind it, and its serial; a true pair from the
    // start, since a file can hold any twelve bytes.
    char dateText_[12] = {'D', 'E', 'C', '-', '3', '0', '-', '1', '8', '9', '9', ' '};
    double day_ = 0;
};

}  // namespace brask
