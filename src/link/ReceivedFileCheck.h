// Whether a data file is a whole transfer: every data line has its length, and their number is the
// one that its "END DATA:" line promises.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/Files.h"

namespace brask {

struct CheckedFile {
    std::int64_t Counted = 0;        // data lines, the bad one included
    std::optional<double> Expected;  // what the last "END DATA:" says; nothing without one
    // The first data line of wrong length, where checking ended. Bytes.
    std::optional<std::string> BadLine;
    // Whether it was read to its end or to the bad line, and if not why.
    Status Outcome;
};

// Lines with exactly three comma-separated fields are data lines, all others headers. The marker
// texts count in exact case. `keepGoing` is asked every few thousand lines; where it says no, the
// outcome's error number is ECANCELED.
CheckedFile CheckReceivedFile(InputFile& file, const std::function<bool()>& keepGoing);

// The trimmed text behind "INSTRUMENT:" on the first line that holds it; empty when none does.
Result<std::string> ReadInstrumentText(InputFile& file);

}  // namespace brask
