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
    std::string PreviousLine() const { return {Previous(), previousLength_}; }
    // Puts another line there, to repeat a transfer as it was.
    void SetPreviousLine(std::string_view line);

  private:
    const char* Previous() const {
        return previousApart_ ? apart_.data() : lines_.data() + line_ - previousLength_;
    }
    Status ExpandBlock(std::string_view block, ReplacementFile& output);
    char* Limit();
    void EndLine();
    Status MakeRoom(ReplacementFile& output);

    Files& files_;
    // The lines on their way to the file, and behind them the one that is being built: nearly every
    // line is put together where it is written from, just below the one that it repeats.
    std::string lines_;
    std::size_t written_ = 0;  // bytes of lines_ that the file has already
    std::size_t line_ = 0;     // where the line being built begins,
    std::size_t end_ = 0;      // and where it ends so far
    // The line above when it is not what stands in front of line_, as received.
    std::string apart_;
    bool previousApart_ = true;
    std::size_t previousLength_ = 0;
    std::int64_t lineCount_ = 0;
    bool instrumentSeen_ = false;
};

}  // namespace brask
