// What the simulated instrument holds: the lines of a data file, ready to be sent.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"
#include "platform/Texts.h"

namespace brask {

class InstrumentMemory {
  public:
    // Takes a data file. Lines may end in CR LF or LF, the last also in nothing; a missing
    // "END DATA:" line is added. Refused, with the line's number as reason, is what a transfer
    // could not carry: a byte 0 or above 127, and text in front of the first "INSTRUMENT:" on its
    // line, which every receiver drops.
    static Result<InstrumentMemory> Read(std::string_view file, const Texts& texts);

    // Every line without its line end; the last is always an "END DATA:" line or what the file has
    // behind it.
    const std::vector<std::string>& Lines() const { return lines_; }
    // Lines with exactly three fields, as receivers count them.
    std::int64_t DataLineCount() const;
    // Leaves out one data line, counted from 1, and says nothing of it in "END DATA:". False when
    // there is no such line.
    bool DropDataLine(std::int64_t number);
    // Makes every "END DATA:" line announce this number.
    void SetAnnouncedCount(std::int64_t count);
    // What is left after clearing: the lines that are no data lines, with a count of 0.
    void Clear();

  private:
    std::vector<std::string> lines_;
};

// Whether a line is an "END DATA:" line, in the letter case that receivers look for.
bool IsEndOfDataLine(std::string_view line);

}  // namespace brask
