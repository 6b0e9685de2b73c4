#include "data/DataFileReader.h"

#include <array>
#include <limits>
#include <memory>
#include <optional>

#include "data/NumberText.h"
#include "platform/AsciiText.h"

namespace brask {
namespace {

constexpr std::size_t kBlockSize = std::size_t{256} * 1024;
// Events get their turn once per so many candidate lines: some 10 µs, far below what anyone sees.
constexpr std::uint32_t kLinesPerTurn = 256;
constexpr std::int32_t kReadingsPerReport = 100;
constexpr std::string_view kInstrumentKey = "INSTRUMENT:";

// The header field that a key fills; nullptr when it is no header key.
std::string* HeaderField(DataSet& data, std::string_view key) {
    if (SameIgnoringCase(key, kInstrumentKey)) return &data.InstrumentName;
    if (SameIgnoringCase(key, "SERIAL NUMBER:")) return &data.InstrumentSerialNumber;
    if (SameIgnoringCase(key, "DATE:")) return &data.InstrumentDate;
    if (SameIgnoringCase(key, "GAS:")) return &data.InstrumentGas;
    return nullptr;
}

// The three fields of a data line; nothing for any other number of fields.
std::optional<std::array<std::string_view, 3>> SplitFields(std::string_view line) {
    const auto first = line.find(',');
    // Exactly two commas: a line of any other shape is no reading, and nothing needs to be said
    // about it.
    const auto second = first == std::string_view::npos ? first : line.find(',', first + 1);
    if (second == std::string_view::npos) return std::nullopt;
    const std::string_view last = line.substr(second + 1);
    if (last.find(',') != std::string_view::npos) return std::nullopt;
    return std::array{line.substr(0, first), line.substr(first + 1, second - first - 1), last};
}

}  // namespace

DataFileReader::DataFileReader(DataSet& data, const ReadOptions& options, ReadObserver& observer)
    : data_(data), options_(options), observer_(observer) {}

ReadSummary DataFileReader::ReadDataFile(InputFile& file) {
    // On the heap, and not cleared first: 256 KiB are too much for the stack of a small system.
    const auto buffer = std::make_unique_for_overwrite<char[]>(kBlockSize);
    while (!summary_.Cancelled) {
        const auto read = file.Read({buffer.get(), kBlockSize});
        if (!read.Ok()) {
            // the line that the failure cut is lost: half a number must not become a reading
            summary_.Outcome = read.Why();
            pending_.clear();
            break;
        }
        if (read.Value() == 0) break;
        // also where a file has no candidate line for megabytes
        if (AskObserver()) ReadBlock({buffer.get(), read.Value()});
    }
    // The last line needs no line end.
    if (!pending_.empty() && !dropping_ && !summary_.Cancelled) EndLine({});
    summary_.LoneLineFeeds = lineFeedsMet_ && !lineEndsMet_;
    return summary_;
}

void DataFileReader::ReadBlock(std::string_view block) {
    // A CR LF can be cut in two by the end of a block.
    if (afterCarriageReturn_ && block.front() == '\n') block.remove_prefix(1);
    afterCarriageReturn_ = false;
    while (!block.empty() && !summary_.Cancelled) {
        // Tried again after every line of another form, so that a header or a bad line costs the
        // fast path nothing but itself.
        if (pending_.empty() && !dropping_) block.remove_prefix(ReadFixedLines(block));
        const auto end = block.find('\r');
        // a CR may still come in the next block
        if (end == std::string_view::npos) {
            KeepForNextBlock(block);
            return;
        }
        lineEndsMet_ = true;
        EndLine(block.substr(0, end));
        block.remove_prefix(end + 1);
        afterCarriageReturn_ = block.empty();
        if (!block.empty() && block.front() == '\n') block.remove_prefix(1);
    }
}

// Reads lines of the fixed form from the start of the block for as long as they come; the number
// of bytes that they take.
std::size_t DataFileReader::ReadFixedLines(std::string_view block) {
    FixedReading reading{};
    std::size_t read = 0;
    for (;;) {
        read += ReadQuietLines(block.substr(read)) * FixedLineParser::kLineLength;
        // The one line that the quiet loop stopped at: it is due for a turn of the events, a report
        // or growth, or it is of another form.
        if (block.size() - read < FixedLineParser::kLineLength ||
            !fixed_.Parse(block.data() + read, reading) || !MayGoOn()) {
            return read;
        }
        ++lineNumber_;
        Append(reading.Time, reading.Gas, reading.Celsius);
        read += FixedLineParser::kLineLength;
    }
}

// The inner loop of loading: lines of the fixed form up to the next at which events get their turn,
// progress is told or the arrays grow. The number of lines read.
std::size_t DataFileReader::ReadQuietLines(std::string_view block) {
    const auto count = static_cast<std::size_t>(data_.ReadingCount);
    constexpr std::size_t kPerReport = kReadingsPerReport;
    // Worked out beforehand, so that the loop itself has no check left but that of the line; this
    // is what files of millions of readings spend their time in.
    const std::size_t most =
        std::min({block.size() / FixedLineParser::kLineLength, kPerReport - 1 - count % kPerReport,
                  std::size_t{(kLinesPerTurn - candidates_ % kLinesPerTurn) % kLinesPerTurn},
                  data_.ReadingTime.size() - count});
    double* const times = data_.ReadingTime.data() + count;
    double* const gas = data_.GasPpm.data() + count;
    double* const temperatures = data_.Temperature.data() + count;
    // a copy, so that the loop need not fetch it through this object for every line
    const TemperatureUnit unit = options_.Unit;
    FixedReading reading{};
    std::size_t lines = 0;
    for (const char* line = block.data(); lines < most && fixed_.Parse(line, reading); ++lines) {
        times[lines] = reading.Time;
        gas[lines] = reading.Gas;
        temperatures[lines] = unit.ToDisplayTemperature(reading.Celsius);
        line += FixedLineParser::kLineLength;
    }
    data_.ReadingCount += static_cast<std::int32_t>(lines);
    lineNumber_ += static_cast<std::int64_t>(lines);
    candidates_ += static_cast<std::uint32_t>(lines);
    return lines;
}

void DataFileReader::KeepForNextBlock(std::string_view part) {
    if (dropping_) return;
    if (pending_.size() + part.size() <= kLongestLine) {
        pending_ += part;
        return;
    }
    NoteLineFeeds(pending_);
    NoteLineFeeds(part);
    // frees the megabyte; clear() would keep it for the rest of the file
    pending_ = std::string();
    dropping_ = true;
    // Not through Report: such a line was never one of readings, so it is logged and not counted.
    observer_.OnBadLine({LineProblem::kTooLong, lineNumber_ + 1, {}, {}, {}});
}

// Handles the line that `end` ends: all of it, or its last part when it began in another block.
void DataFileReader::EndLine(std::string_view end) {
    if (!pending_.empty() || dropping_) {
        KeepForNextBlock(end);
        end = pending_;
    }
    ++lineNumber_;
    if (!dropping_) ParseDataFileLine(end);
    dropping_ = false;
    pending_.clear();
}

void DataFileReader::ParseDataFileLine(std::string_view line) {
    NoteLineFeeds(line);
    const auto colon = line.find(':');
    // Headers have a colon, and so has every time of day; a line without one is neither.
    if (colon == std::string_view::npos) return;
    std::string_view key =
        ContainsIgnoringCase(line, kInstrumentKey) ? kInstrumentKey : line.substr(0, colon + 1);
    // Left over where a line ended in CR LF LF; only headers are lenient about it.
    while (key.size() >= 2 && key.front() == '\n') key.remove_prefix(1);
    if (std::string* field = HeaderField(data_, key)) {
        // users rely on it: the value starts after the line's first colon, also where
        // "INSTRUMENT:" comes after an earlier one
        *field = std::string(Trimmed(line.substr(colon + 1)));
        return;
    }
    AcceptReadingLine(line);
}

void DataFileReader::AcceptReadingLine(std::string_view line) {
    if (!MayGoOn()) return;
    const auto fields = SplitFields(line);
    if (!fields) return;
    const auto& [timeField, gasField, temperatureField] = *fields;

    const std::string rewritten = ToLocaleDateText(timeField, options_.DateOrder);
    // The order of the checks decides which message a line with several faults gets.
    const auto time = ParseDateTime(rewritten, options_.DateOrder);
    if (!time) {
        Report({LineProblem::kInvalidDate, lineNumber_, line, timeField, rewritten});
        return;
    }
    const auto gas = ParseNumber(gasField);
    if (!gas) {
        // the message about the gas has always quoted the temperature field
        Report({LineProblem::kInvalidGas, lineNumber_, line, temperatureField, {}});
        return;
    }
    const auto celsius = ParseNumber(temperatureField);
    if (!celsius) {
        Report({LineProblem::kInvalidTemperature, lineNumber_, line, temperatureField, {}});
        return;
    }
    Append(*time, *gas, *celsius);
}

void DataFileReader::Append(double time, double gas, double celsius) {
    const std::int32_t count = ++data_.ReadingCount;
    if (count % kReadingsPerReport == 0) observer_.OnReadings(count);
    data_.EnsureReadingCapacity();
    const auto slot = static_cast<std::size_t>(count) - 1;
    data_.ReadingTime[slot] = time;
    data_.GasPpm[slot] = gas;
    data_.Temperature[slot] = options_.Unit.ToDisplayTemperature(celsius);
}

void DataFileReader::NoteLineFeeds(std::string_view text) {
    if (text.find('\n') != std::string_view::npos) lineFeedsMet_ = true;
}

// Gives events their turn before a candidate line. False when the reading is to end.
bool DataFileReader::MayGoOn() {
    if (candidates_++ % kLinesPerTurn != 0) return !summary_.Cancelled;
    return AskObserver();
}

bool DataFileReader::AskObserver() {
    // a count that no longer fits its type ends the reading as a cancel does
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max() - 1000;
    if (data_.ReadingCount > kMost || !observer_.KeepReading()) summary_.Cancelled = true;
    return !summary_.Cancelled;
}

void DataFileReader::Report(const LineReport& report) {
    ++summary_.RejectedLines;
    observer_.OnBadLine(report);
}

}  // namespace brask
