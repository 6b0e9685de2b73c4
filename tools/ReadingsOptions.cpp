#include "ReadingsOptions.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "data/DateTime.h"

namespace brask {
namespace {

struct OddName {
    std::string_view Name;
    OddLine Kind;
};

constexpr std::array<OddName, 8> kOddNames = {{{"bad-date", OddLine::kBadDate},
                                               {"bad-gas", OddLine::kBadGas},
                                               {"bad-temperature", OddLine::kBadTemperature},
                                               {"four-fields", OddLine::kFourFields},
                                               {"two-fields", OddLine::kTwoFields},
                                               {"lf-end", OddLine::kLineFeedEnd},
                                               {"overlong", OddLine::kOverlong},
                                               {"lower-case-header", OddLine::kLowerCaseHeader}}};

std::optional<std::int64_t> WholeNumber(std::string_view text) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    constexpr std::int64_t kMost = 1'000'000'000'000;  // keeps sums of times far from overflowing
    if (error != std::errc() || stop != end || number < 0 || number > kMost) return std::nullopt;
    return number;
}

// "2004-03-01T00:00:00" or the date alone.
std::optional<CivilDateTime> StartTime(const std::string& text) {
    CivilDateTime time;
    CivilDate& date = time.Date;
    int used = 0;
    const auto whole = static_cast<int>(text.size());
    const int read =
        std::sscanf(text.c_str(), "%4d-%2d-%2d%nT%2d:%2d:%2d%n", &date.Year, &date.Month, &date.Day,
                    &used, &time.Hour, &time.Minute, &time.Second, &used);
    const bool complete = (read == 3 || read == 6) && used == whole;
    const bool ofDay = time.Hour >= 0 && time.Hour < 24 && time.Minute >= 0 && time.Minute < 60 &&
                       time.Second >= 0 && time.Second < 60;
    if (!complete || !ofDay || !IsCalendarDate(date)) return std::nullopt;
    return time;
}

bool AddOddOnes(std::string_view names, std::vector<OddLine>& odd) {
    while (!names.empty()) {
        const auto comma = names.find(',');
        const std::string_view name = names.substr(0, comma);
        bool known = false;
        for (const OddName& candidate : kOddNames) {
            if (name != candidate.Name && name != "all") continue;
            odd.push_back(candidate.Kind);
            known = true;
        }
        if (!known) return false;
        names.remove_prefix(comma == std::string_view::npos ? names.size() : comma + 1);
    }
    return true;
}

std::int64_t* NumberOption(ReadingsOptions& options, std::string_view name) {
    if (name == "--readings") return &options.Count;
    if (name == "--interval") return &options.Interval;
    if (name == "--spike-every") return &options.SpikeEvery;
    if (name == "--spikes") return &options.SpikeCount;
    if (name == "--gaps") return &options.Gaps;
    if (name == "--gap-length") return &options.GapLength;
    return nullptr;
}

enum class Taken { kNo, kYes, kBadValue };

Taken TakeValue(ReadingsOptions& options, std::string_view name, const std::string& value) {
    const auto number = WholeNumber(value);
    if (std::int64_t* const field = NumberOption(options, name)) {
        *field = number.value_or(0);
        return number ? Taken::kYes : Taken::kBadValue;
    }
    if (name == "--spike-height" || name == "--seed") {
        if (name == "--seed") options.Seed = static_cast<std::uint64_t>(number.value_or(0));
        if (name == "--spike-height") options.SpikeHeight = static_cast<double>(number.value_or(0));
        return number && (name == "--seed" || *number <= 90000) ? Taken::kYes : Taken::kBadValue;
    }
    if (name == "--start") {
        const auto start = StartTime(value);
        options.Start = start.value_or(options.Start);
        return start ? Taken::kYes : Taken::kBadValue;
    }
    if (name == "--odd") return AddOddOnes(value, options.OddOnes) ? Taken::kYes : Taken::kBadValue;
    if (name != "-o") return Taken::kNo;
    options.Output = value;
    return value.empty() ? Taken::kBadValue : Taken::kYes;
}

// The last stamp must still have a year of four digits.
bool EndsInTime(const ReadingsOptions& options) {
    const double seconds =
        static_cast<double>(options.Count) * static_cast<double>(options.Interval) +
        static_cast<double>(options.Gaps) * static_cast<double>(options.GapLength);
    return SerialFromCivil(options.Start) + seconds / kSecondsPerDay <
           static_cast<double>(DaysFromCivil({10000, 1, 1}));
}

bool TakeSwitch(ReadingsOptions& options, std::string_view name) {
    if (name == "--help") options.Help = true;
    if (name == "--no-header") options.Header = false;
    if (name == "--no-trailer") options.Trailer = false;
    return name == "--help" || name == "--no-header" || name == "--no-trailer";
}

}  // namespace

Result<ReadingsOptions> ParseReadingsOptions(std::span<const std::string_view> arguments) {
    ReadingsOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view name = arguments[i];
        if (TakeSwitch(options, name)) continue;
        const bool last = i + 1 == arguments.size();
        const std::string value(last ? std::string_view() : arguments[i + 1]);
        const Taken taken = TakeValue(options, name, value);
        if (taken == Taken::kNo) return Error{0, "unknown option " + std::string(name)};
        if (last) return Error{0, "option " + std::string(name) + " needs a value"};
        if (taken == Taken::kBadValue) {
            return Error{0, "option " + std::string(name) + " does not take " + value};
        }
        ++i;
    }
    if (!EndsInTime(options)) return Error{0, "the readings would go beyond the year 9999"};
    return options;
}

std::string_view ReadingsHelp() {
    return R"(usage: make-readings [OPTION]...
Writes a data file as the instrument would.

  --readings N         readings (default 1000)
  --interval SECONDS   from one reading to the next (default 60)
  --start TIME         first stamp, 2004-03-01T00:00:00 or the date alone
  --spike-every N      a spike at every N-th reading
  --spikes N           N spikes, evenly spread
  --spike-height PPM   height of spikes, up to 90000 (default 2000)
  --gaps N             N gaps, evenly spread
  --gap-length SECONDS what each gap adds to the interval
  --odd KIND[,KIND]... lines that are no readings, once each, evenly spread:
                       bad-date bad-gas bad-temperature four-fields two-fields
                       lf-end overlong lower-case-header, or all
  --seed N             another series (default 1)
  --no-header          without the four header lines
  --no-trailer         without the line "END DATA:"
  -o FILE              write to FILE instead of standard output
)";
}

}  // namespace brask
