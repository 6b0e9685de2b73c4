// Turns the compressed stream that the instrument sends into a data file.
//
// A byte below 128 is a character; 0 is filler and dropped. A byte n of 128 or more stands for the
// n - 128 characters that stand at the same columns one line up. A line ends at LF. What comes
// before "INSTRUMENT:" on the first line that holds it is dropped; lines before that line stay.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Files.h"

namespace brask {

class ReceivedFileExpander {
  public:
    explicit ReceivedFileExpander(Files& files) : files_(files) {}

    // Writes the data file durably, replacing one of that name. The number of lines written; an
    // unfinished last line is not. The line that the last transfer ended with goes on serving as
    // the line above the first of the next. On any failure the old data file stays.
    Result<std::int64_t> ExpandReceivedFile(const std::string& rawPath,
                                            const std::string& dataPath);

  private:
    // Handles one byte; true when it ended a line.
    bool TakeByte(unsigned char byte);
    Status WriteLine(ReplacementFile& output);

    Files& files_;
    std::string previousLine_;  // with its line end
    std::string line_;
    bool instrumentSeen_ = false;
};

}  // namespace brask
