#include "ReadingsWriter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "data/DateTime.h"

namespace brask {
namespace {

constexpr std::size_t kFlushAt = 256 * 1024;
constexpr std::size_t kLineLength = 37;  // with CR LF
constexpr std::int64_t kDay = 86400;

void TwoDigits(char* to, std::int64_t number) {
    to[0] = static_cast<char>('0' + number / 10);
    to[1] = static_cast<char>('0' + number % 10);
}

// Right-aligned in `width` characters, one decimal.
void Tenths(char* to, int width, std::int32_t tenths) {
    std::int32_t left = std::abs(tenths);
    char* at = to + width;
    *--at = static_cast<char>('0' + left % 10);
    *--at = '.';
    left /= 10;
    do {
        *--at = static_cast<char>('0' + left % 10);
        left /= 10;
    } while (left > 0 && at > to);
    if (tenths < 0 && at > to) *--at = '-';
    while (at > to) *--at = ' ';
}

// Whether one of `parts` evenly spread places among `count` lies directly behind index.
bool AtPlace(std::int64_t index, std::int64_t count, std::int64_t parts) {
    if (parts <= 0) return false;
    const auto place = [&](std::int64_t i) {
        return static_cast<std::int64_t>(static_cast<double>(i) * static_cast<double>(parts + 1) /
                                         static_cast<double>(count));
    };
    return place(index + 1) != place(index) && index + 1 < count;
}

}  // namespace

ReadingsWriter::ReadingsWriter(const ReadingsOptions& options, Sink sink)
    : options_(options),
      sink_(std::move(sink)),
      random_(options.Seed * 0x9E3779B97F4A7C15ULL + 0x1234567),
      second_(std::llround(SerialFromCivil(options.Start) * kSecondsPerDay)) {
    buffer_.reserve(kFlushAt + 4096);
}

Status ReadingsWriter::Write() {
    if (options_.Header) AppendHeader();
    std::size_t odd = 0;
    const auto oddCount = static_cast<std::int64_t>(options_.OddOnes.size());
    for (std::int64_t index = 0; index < options_.Count; ++index) {
        AppendReading(index);
        if (options_.Gaps > 0 && AtPlace(index, options_.Count, options_.Gaps)) {
            second_ += options_.GapLength;
        }
        if (oddCount > 0 && odd < options_.OddOnes.size() &&
            AtPlace(index, options_.Count, oddCount)) {
            AppendOddLine(options_.OddOnes[odd++]);
        }
        if (buffer_.size() < kFlushAt) continue;
        if (Status written = Flush(kFlushAt); !written.Ok()) return written;
    }
    while (odd < options_.OddOnes.size()) AppendOddLine(options_.OddOnes[odd++]);
    if (options_.Trailer) {
        const std::string count = std::to_string(options_.Count);
        buffer_ += "END DATA:" + std::string(count.size() < 7 ? 7 - count.size() : 0, ' ');
        buffer_ += count + "\r\n";
    }
    return Flush(0);
}

void ReadingsWriter::AppendHeader() {
    char day[20];
    AppendStamp(day);
    buffer_ += "INSTRUMENT: TALVEX K42\r\nSERIAL NUMBER: 0417\r\nDATE: " + std::string(day, 11);
    buffer_ += "\r\nGAS: CO\r\n";
}

void ReadingsWriter::AppendStamp(char* to) {
    const std::int64_t day = second_ / kDay;
    if (day != stampedDay_) {
        stampedDay_ = day;
        const CivilDate date = CivilFromDays(day);
        static constexpr char kMonths[] = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
        std::memcpy(dayText_, kMonths + 3 * (date.Month - 1), 3);
        dayText_[3] = dayText_[6] = '-';
        TwoDigits(dayText_ + 4, date.Day);
        TwoDigits(dayText_ + 7, date.Year / 100);
        TwoDigits(dayText_ + 9, date.Year % 100);
        dayText_[11] = ' ';
    }
    const std::int64_t ofDay = second_ % kDay;
    std::memcpy(to, dayText_, sizeof dayText_);
    TwoDigits(to + 12, ofDay / 3600);
    TwoDigits(to + 15, ofDay / 60 % 60);
    TwoDigits(to + 18, ofDay % 60);
    to[14] = to[17] = ':';
}

void ReadingsWriter::AppendReading(std::int64_t index) {
    char line[kLineLength];
    AppendStamp(line);
    line[20] = line[28] = ',';
    // gas wanders and is drawn back to a few ppm
    gasTenths_ += static_cast<std::int32_t>(Noise(7)) - 3;
    if (gasTenths_ < 0 || gasTenths_ > 400) gasTenths_ = 5;
    const std::int32_t spike =
        IsSpike(index) ? static_cast<std::int32_t>(options_.SpikeHeight * 10) : 0;
    Tenths(line + 21, 7, gasTenths_ + spike);
    // coldest at midnight: a triangle from -2 to 22 °C and half a degree of noise
    const std::int64_t ofDay = second_ % kDay;
    const std::int64_t fromMidnight = std::min(ofDay, kDay - ofDay);
    Tenths(line + 29, 6,
           static_cast<std::int32_t>(fromMidnight * 240 / (kDay / 2)) - 20 +
               static_cast<std::int32_t>(Noise(6)));
    line[35] = '\r';
    line[36] = '\n';
    buffer_.append(line, sizeof line);
    second_ += options_.Interval;
}

void ReadingsWriter::AppendOddLine(OddLine kind) {
    switch (kind) {
        case OddLine::kBadDate:
            buffer_ += "FEB-30-2004 12:00:00,    0.1,  26.1\r\n";
            break;
        case OddLine::kBadGas:
            buffer_ += "MAR-01-2004 12:00:00,    abc,  26.1\r\n";
            break;
        case OddLine::kBadTemperature:
            buffer_ += "MAR-01-2004 12:00:00,    0.1,  warm\r\n";
            break;
        case OddLine::kFourFields:
            buffer_ += "MAR-01-2004 12:00:00,    0.1,  26.1,\r\n";
            break;
        case OddLine::kTwoFields:
            buffer_ += "MAR-01-2004 12:00:00,    0.1\r\n";
            break;
        case OddLine::kLineFeedEnd:
            buffer_ += "MAR-01-2004 12:00:00,    0.1,  26.1\n";
            buffer_ += "MAR-01-2004 12:00:00,    0.1,  26.1\r\n";
            break;
        case OddLine::kOverlong:
            buffer_ += "NOTE: " + std::string((1 << 20) + 1000, 'x') + "\r\n";
            break;
        case OddLine::kLowerCaseHeader:
            buffer_ += "serial number: 0417b\r\n";
            break;
    }
}

Status ReadingsWriter::Flush(std::size_t threshold) {
    if (buffer_.empty() || buffer_.size() < threshold) return {};
    Status written = sink_(buffer_);
    buffer_.clear();
    return written;
}

bool ReadingsWriter::IsSpike(std::int64_t index) const {
    if (options_.SpikeEvery > 0) return (index + 1) % options_.SpikeEvery == 0;
    return AtPlace(index, options_.Count, options_.SpikeCount);
}

// The same on every machine, unlike the standard library's distributions.
std::uint32_t ReadingsWriter::Noise(std::uint32_t below) {
    random_ = random_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<std::uint32_t>(((random_ >> 33) * below) >> 31);
}

}  // namespace brask
