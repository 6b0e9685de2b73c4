// The fast path of the reader: a data line exactly as the instrument writes it,
//
//     JAN-01-2003 00:05:12,    0.1,  26.1 CR LF
//
// time stamp in 20 characters, gas in 7, temperature in 6. The widths and every character are
// checked; whatever is not of this form is left to the general path, which gives the same values.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "data/DateTime.h"

namespace brask {

struct FixedReading {
    double Time;     // serial
    double Gas;      // ppm
    double Celsius;  // °C
};

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
        int seconds = 0;
        if (!TimeOfDay(line + 12, seconds) || !Decimal(line + 21, 7, reading.Gas) ||
            !Decimal(line + 29, 6, reading.Celsius)) {
            return false;
        }
        // files are in time order, so the date is nearly always that of the line before
        if (std::memcmp(line, dateText_, sizeof dateText_) != 0 && !NewDate(line)) return false;
        reading.Time = day_ + seconds / kSecondsPerDay;
        return true;
    }

  private:
    static bool Digit(char c, int& digit) {
        digit = c - '0';
        return digit >= 0 && digit <= 9;
    }

    // "hh:mm:ss", eight characters.
    static bool TimeOfDay(const char* text, int& seconds) {
        if (text[2] != ':' || text[5] != ':') return false;
        int h1 = 0, h2 = 0, m1 = 0, m2 = 0, s1 = 0, s2 = 0;
        const bool digits = int{Digit(text[0], h1)} & int{Digit(text[1], h2)} &
                            int{Digit(text[3], m1)} & int{Digit(text[4], m2)} &
                            int{Digit(text[6], s1)} & int{Digit(text[7], s2)};
        const int hours = h1 * 10 + h2;
        if (!digits || hours > 23 || m1 > 5 || s1 > 5) return false;
        seconds = hours * 3600 + (m1 * 10 + m2) * 60 + s1 * 10 + s2;
        return true;
    }

    // Leading blanks, an optional "-", then digits with one digit behind a point: "    0.1". Up to
    // six digits fit a double exactly, and one division rounds as a full parse would.
    static bool Decimal(const char* text, int width, double& value) {
        int at = 0;
        while (at < width - 3 && text[at] == ' ') ++at;
        const bool negative = text[at] == '-';
        if (negative) ++at;
        int tenths = 0;
        int digit = 0;
        if (at >= width - 2 || text[width - 2] != '.') return false;
        for (; at < width - 2; ++at) {
            if (!Digit(text[at], digit)) return false;
            tenths = tenths * 10 + digit;
        }
        if (!Digit(text[width - 1], digit)) return false;
        tenths = tenths * 10 + digit;
        // negated behind the division, for a "-0.0" to stay one
        value = tenths / 10.0;
        if (negative) value = -value;
        return true;
    }

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
