// What make-readings is asked to write.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CivilTime.h"
#include "platform/Result.h"

namespace brask {

// Lines that an instrument does not write but files of users hold. None of them becomes a reading.
enum class OddLine {
    kBadDate,
    kBadGas,
    kBadTemperature,
    kFourFields,
    kTwoFields,
    kLineFeedEnd,      // a line that ends in LF alone, and the line that it runs into
    kOverlong,         // more than a mebibyte
    kLowerCaseHeader,  // "serial number: 0417b"
};

struct ReadingsOptions {
    std::int64_t Count = 1000;   // readings
    std::int64_t Interval = 60;  // seconds from one reading to the next
    CivilDateTime Start{{2004, 3, 1}, 0, 0, 0};
    std::int64_t SpikeEvery = 0;   // every so many readings stands a spike; 0 for none
    std::int64_t SpikeCount = 0;   // this many spikes, evenly spread; counts when SpikeEvery is 0
    double SpikeHeight = 2000;     // ppm
    std::int64_t Gaps = 0;         // breaks in the series, evenly spread
    std::int64_t GapLength = 0;    // seconds that each gap adds to the interval
    std::vector<OddLine> OddOnes;  // written once each, evenly spread, in this order
    std::uint64_t Seed = 1;
    bool Header = true;
    bool Trailer = true;
    std::string Output;  // a path; empty for standard output
    bool Help = false;
};

// The options of a command line without the program's name. The error's reason is one line.
Result<ReadingsOptions> ParseReadingsOptions(std::span<const std::string_view> arguments);

// The text of --help.
std::string_view ReadingsHelp();

}  // namespace brask
