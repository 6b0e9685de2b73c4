#include "link/ReceivedFileCheck.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

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

bool HasThreeFields(std::string_view line) {
    if (line.size() != kDataLineLength) return std::count(line.begin(), line.end(), ',') == 2;
    // Nearly every line. Its length known, and counted in a byte, the compiler takes sixteen
    // characters at a time.
    std::uint8_t commas = 0;
    for (std::size_t i = 0; i < kDataLineLength; ++i) {
        commas = static_cast<std::uint8_t>(commas + (line[i] == ',' ? 1 : 0));
    }
    return commas == 2;
}

// What a line promises, if it is one that does.
std::optional<double> PromisedCount(std::string_view line) {
    const auto count = Behind(line, kEndData);
    return count ? std::optional(LeadingNumber(*count)) : std::nullopt;
}

}  // namespace

CheckedFile CheckReceivedFile(InputFile& file, const std::function<bool()>& keepGoing) {
    CheckedFile checked;
    TextLines lines(file);
    std::string_view line;
    std::array<char, kDataLineLength> last{};
    bool dataLine = false;
    for (std::int64_t number = 0; lines.Next(line); ++number) {
        if (number % kLinesPerTurn == 0 && !keepGoing()) {
            checked.Outcome = Error{ECANCELED, "cancelled"};
            return checked;
        }
        dataLine = HasThreeFields(line);
        if (!dataLine) {
            if (const auto count = PromisedCount(line)) checked.Expected = count;
            continue;
        }
        ++checked.Counted;
        if (line.size() != kDataLineLength) {
            checked.BadLine = line;
            return checked;
        }
        std::copy(line.begin(), line.end(), last.begin());
    }
    checked.Outcome = lines.Outcome();
    // the last line of all may promise the count in the shape of a data line, too
    if (dataLine) {
        if (const auto count = PromisedCount({last.data(), last.size()})) checked.Expected = count;
    }
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
