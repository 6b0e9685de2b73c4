// Writes the lines of a data file: header, readings of a plausible week in a kitchen (a daily swing
// of the temperature, some gas, noise), trailer.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "ReadingsOptions.h"
#include "platform/Result.h"

namespace brask {

class ReadingsWriter {
  public:
    // Takes the file's bytes, some 256 KiB at a time, in order.
    using Sink = std::function<Status(std::string_view bytes)>;

    ReadingsWriter(const ReadingsOptions& options, Sink sink);

    // Writes the whole file; the sink's error when it has one.
    Status Write();

  private:
    void AppendHeader();
    void AppendReading(std::int64_t index);
    void AppendStamp(char* to);
    void AppendOddLine(OddLine kind);
    Status Flush(std::size_t threshold);
    bool IsSpike(std::int64_t index) const;
    std::uint32_t Noise(std::uint32_t below);

    const ReadingsOptions& options_;
    Sink sink_;
    std::string buffer_;
    std::uint64_t random_;
    std::int64_t second_;           // since the epoch of serials, of the next reading
    std::int64_t stampedDay_ = -1;  // the day whose text stands in dayText_
    char dayText_[12] = {};         // "MAR-01-2004 "
    std::int32_t gasTenths_ = 5;
};

}  // namespace brask
