#include "link/ReceivedFileCheck.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "data/FixedLine.h"
#include "data/NumberText.h"
#include "data/TextLines.h"
#include "platform/AsciiText.h"

namespace brask {
namespace {

constexpr std::string_view kInstrument = "INSTRUMENT:";
constexpr std::string_view kEndData = "END DATA:";
// The shape of "JAN-01-2003 00:05:12,    0.1,  26.1".
constexpr std::size_t kDataLineLength = 35;
constexpr std::int64_t kLinesPerTurn = 4096;

// What stands behind a marker; nothing when the line does not hold it.
std::optional<std::string_view> Behind(std::string_view line, std::string_view marker) {
    const auto found = line.find(marker);
    if (found == std::string_view::npos) return std::nullopt;
    return line.substr(found + marker.size());
}

void TakeHeader(std::string_view line, CheckedFile& checked) {
    if (const auto text = Behind(line, kInstrument)) checked.Instrument = Trimmed(*text);
    if (const auto count = Behind(line, kEndData)) {
        checked.Expected = LeadingNumber(std::string(*count));
    }
}

}  // namespace

CheckedFile CheckReceivedFile(InputFile& file, const std::function<bool()>& keepGoing) {
    CheckedFile checked;
    TextLines lines(file);
    std::string_view line;
    for (std::int64_t number = 0; lines.Next(line); ++number) {
        if (number % kLinesPerTurn == 0 && !keepGoing()) {
            checked.Outcome = Error{ECANCELED, "cancelled"};
            return checked;
        }
        if (std::count(line.begin(), line.end(), ',') != 2) {
            TakeHeader(line, checked);
            continue;
        }
        ++checked.Counted;
        if (line.size() != kDataLineLength) {
            checked.BadLine = line;
            return checked;
        }
        // The last line of all says the count even where it looks like a data line; a later line
        // takes this back.
    }
    checked.Outcome = lines.Outcome();
    return checked;
}

Result<std::string> ReadInstrumentText(InputFile& file) {
    TextLines lines(file);
    std::string_view line;
    while (lines.Next(line)) {
        if (const auto text = Behind(line, kInstrument)) return std::string(Trimmed(*text));
    }
    if (!lines.Outcome().Ok()) return lines.Outcome().Why();
    return std::string();
}

}  // namespace brask
