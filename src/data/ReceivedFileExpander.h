// Turns the compressed stream that the instrument sends into a data file.
//
// A byte below 128 is a character; 0 is filler and dropped. A byte n of 128 or more stands for the
// n - 128 characters that stand at the same columns one line up. A line ends at LF. What comes
// before "INSTRUMENT:" on the first line that holds it is dropped; lines before that line stay.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace brask {

class ReceivedFileExpander {
  public:
    // In bytes; what a line has beyond is dropped, so that no stream can fill the memory. Readers
    // of data files drop such lines altogether.
    static constexpr std::size_t kLongestLine = 1 << 20;

    explicit ReceivedFileExpander(Files& files);

    // Writes the data file durably, replacing one of that name. The number of lines written; an
    // unfinished last line is not. The line that the last transfer ended with goes on serving as
    // the line above the first of the next. On any failure the old data file stays. `keepGoing` is
    // asked at every block; where it says no the work ends, with the error number ECANCELED.
    Result<std::int64_t> ExpandReceivedFile(const std::string& rawPath, const std::string& dataPath,
                                            const std::function<bool()>& keepGoing = {});

    // The line above the first one of the next transfer, with its line end; empty when there is
    // none.
    std::string PreviousLine() const { return previous_.Bytes.substr(0, previous_.Length); }
    // Puts another line there, to repeat a transfer as it was.
    void SetPreviousLine(std::string_view line);

  private:
    // A line in a buffer that is always longer than the line by the room that one byte of a stream
    // can need.
    struct Line {
        std::string Bytes;
        std::size_t Length = 0;
    };

    Status ExpandBlock(std::string_view block, ReplacementFile& output);
    void Repeat(std::size_t count);
    Status EndLine(ReplacementFile& output);

    Files& files_;
    Line previous_;
    Line line_;
    std::string pending_;  // lines on their way to the file
    std::int64_t lines_ = 0;
    bool instrumentSeen_ = false;
};

}  // namespace brask
