// The yardstick of loading: a parser for files in the instrument's own fixed columns and nothing
// else. It trusts every line to have its shape and checks no character.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>
#include <vector>

namespace brask::bench {

struct ReferenceReadings {
    std::vector<double> Time;  // whole days since 30 December 1899 and the fraction of the day
    std::vector<double> Gas;
    std::vector<double> Temperature;
};

class ReferenceParser {
  public:
    // Every data line of the file; empty arrays when it cannot be read.
    static ReferenceReadings Read(const char* path) {
        ReferenceReadings readings;
        const int file = ::open(path, O_RDONLY | O_CLOEXEC);
        struct stat status {};
        if (file < 0 || ::fstat(file, &status) != 0) return readings;
        const auto expected = static_cast<std::size_t>(status.st_size) / kLine;
        readings.Time.reserve(expected);
        readings.Gas.reserve(expected);
        readings.Temperature.reserve(expected);
        std::vector<char> buffer(kBlock);
        std::size_t kept = 0;
        for (;;) {
            const ssize_t count = ::read(file, buffer.data() + kept, buffer.size() - kept);
            if (count <= 0) break;
            const std::size_t length = kept + static_cast<std::size_t>(count);
            const std::size_t used = Lines(buffer.data(), length, readings);
            kept = length - used;
            std::memmove(buffer.data(), buffer.data() + used, kept);
        }
        ::close(file);
        return readings;
    }

  private:
    static constexpr std::size_t kBlock = 256 * 1024;
    static constexpr std::size_t kLine = 37;  // with CR LF

    // Parses whole lines; the number of bytes that they take.
    static std::size_t Lines(const char* text, std::size_t length, ReferenceReadings& readings) {
        std::size_t at = 0;
        while (at < length) {
            const char* const line = text + at;
            const std::size_t left = length - at;
            if (left >= kLine && line[20] == ',' && line[28] == ',' && line[35] == '\r') {
                Line(line, readings);
                at += kLine;
                continue;
            }
            const void* const end = std::memchr(line, '\n', left);
            if (end == nullptr) break;
            at = static_cast<std::size_t>(static_cast<const char*>(end) - text) + 1;
        }
        return at;
    }

    static void Line(const char* line, ReferenceReadings& readings) {
        const int seconds = Two(line + 12) * 3600 + Two(line + 15) * 60 + Two(line + 18);
        const int year = Two(line + 7) * 100 + Two(line + 9);
        readings.Time.push_back(Days(year, Month(line), Two(line + 4)) + seconds / 86400.0);
        readings.Gas.push_back(Decimal(line + 21, 7));
        readings.Temperature.push_back(Decimal(line + 29, 6));
    }

    static int Two(const char* text) { return (text[0] - '0') * 10 + (text[1] - '0'); }

    // 1 to 12, by the last two letters, which tell all months apart.
    static int Month(const char* text) {
        switch (text[1] << 8 | text[2]) {
            case 'A' << 8 | 'N':
                return 1;
            case 'E' << 8 | 'B':
                return 2;
            case 'A' << 8 | 'R':
                return 3;
            case 'P' << 8 | 'R':
                return 4;
            case 'A' << 8 | 'Y':
                return 5;
            case 'U' << 8 | 'N':
                return 6;
            case 'U' << 8 | 'L':
                return 7;
            case 'U' << 8 | 'G':
                return 8;
            case 'E' << 8 | 'P':
                return 9;
            case 'C' << 8 | 'T':
                return 10;
            case 'O' << 8 | 'V':
                return 11;
            default:
                return 12;
        }
    }

    static int Days(int year, int month, int day) {
        static constexpr int kBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        const int before = year - 1;
        constexpr int kEpoch = 693594;  // 30 December 1899, counted from 31 December of year 0
        return before * 365 + before / 4 - before / 100 + before / 400 + kBefore[month - 1] +
               (leap && month > 2 ? 1 : 0) + day - kEpoch;
    }

    static double Decimal(const char* text, int width) {
        int at = 0;
        while (text[at] == ' ') ++at;
        const bool negative = text[at] == '-';
        if (negative) ++at;
        int value = 0;
        for (; at < width; ++at) {
            if (text[at] != '.') value = value * 10 + (text[at] - '0');
        }
        return (negative ? -value : value) / 10.0;
    }
};

}  // namespace brask::bench
