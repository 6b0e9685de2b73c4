// Reads a data file into the DataSet: header lines, data lines, and any other lines, which are
// ignored. The reader talks to nobody: what it meets it reports to a ReadObserver.
//
// Lines end at CR or CR LF; a lone LF is no line end. Header lines are "INSTRUMENT:", "SERIAL
// NUMBER:", "DATE:", "GAS:" with their value; data lines have exactly three comma-separated fields:
// time stamp, gas in ppm, temperature in °C.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/DataSet.h"
#include "data/FixedLine.h"
#include "data/TemperatureUnit.h"
#include "platform/Files.h"
#include "platform/UserLocale.h"

namespace brask {

enum class LineProblem { kInvalidDate, kInvalidGas, kInvalidTemperature, kTooLong };

// A line that was not read. Texts are the file's bytes.
struct LineReport {
    // The views point into buffers of the reader: they are valid only during the call.
    LineProblem Problem;
    std::int64_t LineNumber;     // from 1
    std::string_view Line;       // empty for a line that is too long
    std::string_view Field;      // what a message about it quotes
    std::string_view Rewritten;  // the time field as it was understood, for kInvalidDate
};

class ReadObserver {
  public:
    virtual ~ReadObserver() = default;

    virtual void OnBadLine(const LineReport& report) = 0;
    // At every 100th reading. The count includes it.
    virtual void OnReadings(std::int32_t count) = 0;
    // Asked before candidate lines, once per some hundred, and before each block of the file;
    // false ends the reading.
    virtual bool KeepReading() = 0;
};

struct ReadOptions {
    LongDateOrder DateOrder = LongDateOrder::kMonthDayYear;
    TemperatureUnit Unit = TemperatureUnit();
};

struct ReadSummary {
    Status Outcome;                  // why reading broke off, if the file could not be read
    bool Cancelled = false;          // the observer ended it
    bool LoneLineFeeds = false;      // line feeds were met and not one line end
    std::int64_t RejectedLines = 0;  // lines that a message is due for
};

// One object reads one file.
class DataFileReader {
  public:
    // A longer line is dropped to its end.
    static constexpr std::size_t kLongestLine = 1 << 20;

    DataFileReader(DataSet& data, const ReadOptions& options, ReadObserver& observer);

    // Adds every reading of the file to the DataSet, in blocks of 256 KiB, whatever its length.
    // Header fields are overwritten as their lines come; a failure or a cancel leaves what was read
    // up to there.
    ReadSummary ReadDataFile(InputFile& file);

    // Classifies one line, without its line end, as header, data or other, and stores it. What is
    // stored goes to the DataSet, what is rejected to the observer and the summary.
    void ParseDataFileLine(std::string_view line);

  private:
    void ReadBlock(std::string_view block);
    std::size_t ReadFixedLines(std::string_view block);
    std::size_t ReadQuietLines(std::string_view block);
    void EndLine(std::string_view end);
    void KeepForNextBlock(std::string_view part);
    void AcceptReadingLine(std::string_view line);
    void Append(double time, double gas, double celsius);
    void NoteLineFeeds(std::string_view text);
    bool MayGoOn();
    bool AskObserver();
    void Report(const LineReport& report);

    DataSet& data_;
    ReadOptions options_;
    ReadObserver& observer_;
    FixedLineParser fixed_;
    ReadSummary summary_;
    std::string pending_;        // the beginning of a line that goes on in the next block
    bool dropping_ = false;      // within a line that is too long
    bool lineFeedsMet_ = false;  // within lines
    bool lineEndsMet_ = false;
    bool afterCarriageReturn_ = false;  // at the end of the last block: a LF may follow
    std::int64_t lineNumber_ = 0;
    // lines so far that could be readings; paces the turns of the events
    std::uint32_t candidates_ = 0;
};

}  // namespace brask
