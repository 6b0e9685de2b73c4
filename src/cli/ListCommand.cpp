#include "cli/ListCommand.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "cli/CliTexts.h"
#include "cli/CommandSession.h"
#include "cli/Shell.h"
#include "data/DateTime.h"
#include "data/NumberText.h"

namespace brask {
namespace {

constexpr auto kOptions = std::to_array<OptionRow>({
    {"start", OptionKind::kCount, "N", TextRow("cli", "begin with reading N, counted from 0")},
    {"count", OptionKind::kCount, "M", TextRow("cli", "print at most M readings")},
    {"exact", OptionKind::kSwitch, "", TextRow("cli", "print full numbers instead of one decimal")},
});

// The readings asked for, as indexes from Begin to before End.
struct Stretch {
    std::size_t Begin = 0;
    std::size_t End = 0;
};

Stretch StretchOf(const CommandLine& line, std::size_t readings) {
    const auto begin = static_cast<std::size_t>(line.Count("start").value_or(0));
    // first, so that the subtraction below cannot wrap round
    if (begin >= readings) return {};
    const std::size_t left = readings - begin;
    const auto count = line.Count("count");
    return {begin, begin + (count ? std::min(left, static_cast<std::size_t>(*count)) : left)};
}

// Stamps as the grid shows them. Readings follow each other closely, so that the part of a stamp
// that tells the day is put together once per day.
class StampWriter {
  public:
    // Valid until the next call.
    std::string_view Stamp(double serial) {
        const auto seconds = std::llround(serial * kSecondsPerDay);
        constexpr std::int64_t kDay = 86400;
        // Before 30 December 1899 the division would round the other way; such stamps are too rare
        // to matter.
        if (serial < 0 || seconds / kDay != day_) {
            stamp_ = FormatReadingTime(serial);
            day_ = serial < 0 ? -1 : seconds / kDay;
            return stamp_;
        }
        const std::int64_t time = seconds % kDay;
        TwoDigits(kHours, time / 3600);
        TwoDigits(kHours + 3, time / 60 % 60);
        TwoDigits(kHours + 6, time % 60);
        return stamp_;
    }

  private:
    static constexpr std::size_t kHours = 12;  // where the hours stand

    void TwoDigits(std::size_t at, std::int64_t number) {
        stamp_[at] = static_cast<char>('0' + number / 10);
        stamp_[at + 1] = static_cast<char>('0' + number % 10);
    }

    std::int64_t day_ = -1;
    std::string stamp_;
};

void WriteCsv(OutputBuffer& out, const CommandSession& session, Stretch stretch, bool exact) {
    // The heads are those of the grid; scripts know the columns by them.
    out.Write("Result,DATE / TIME,GAS (ppm),Temp (" + session.Unit().Label() + "),Marker Info\n");
    const DataSet& data = session.Data();
    StampWriter stamps;
    for (std::size_t i = stretch.Begin; i < stretch.End; ++i) {
        // readings are numbered from 1, as in the grid; only --start counts from 0
        out.WriteInteger(static_cast<std::int64_t>(i) + 1);
        out.Write(",");
        out.Write(stamps.Stamp(data.ReadingTime[i]));
        for (const double value : {data.GasPpm[i], data.Temperature[i]}) {
            out.Write(",");
            // The grid shows tenths; --exact is for going on with the numbers.
            if (exact) {
                out.WriteNumber(value);
            } else {
                out.Write(FormatTenths(value));
            }
        }
        // the last column is that of the markers
        out.Write(",\n");
    }
}

void WriteDocument(Shell& shell, const DataSet& data, Stretch stretch) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    json.Key("readings");
    json.BeginArray();
    StampWriter stamps;
    for (std::size_t i = stretch.Begin; i < stretch.End; ++i) {
        json.BeginObject();
        json.IntegerMember("result", static_cast<std::int64_t>(i) + 1);
        json.Member("time", stamps.Stamp(data.ReadingTime[i]));
        // beside the stamp, which has whole seconds only
        json.Member("serial", data.ReadingTime[i]);
        json.Member("gas", data.GasPpm[i]);
        json.Member("temperature", data.Temperature[i]);
        // always there, so that a script need not ask for it
        json.Member("markers", std::span<const std::string>());
        json.EndObject();
    }
    json.EndArray();
    EndDocument(shell, json);
}

}  // namespace

std::span<const OptionRow> ListOptions() { return kOptions; }

ExitStatus RunList(Shell& shell, const CommandLine& line) {
    CommandSession session(shell, line);
    const std::string& file = line.Arguments()[0];
    bool shown = session.Load(file);
    const auto readings = static_cast<std::int64_t>(session.Data().ReadingCount);
    const std::int64_t start = line.Count("start").value_or(0);
    // An index beyond the end is a mistake worth a message; a count that reaches beyond is not.
    if (shown && start >= readings) {
        ShowFailure(shell, shell.Words.Fill(cli_texts::kNoSuchReading, {std::to_string(start), file,
                                                                        std::to_string(readings)}));
        shown = false;
    }
    const Stretch stretch = StretchOf(line, static_cast<std::size_t>(readings));
    if (line.Has("json")) {
        WriteDocument(shell, session.Data(), stretch);
    } else if (shown) {
        WriteCsv(shell.Out, session, stretch, line.Has("exact"));
    }
    return shown ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
