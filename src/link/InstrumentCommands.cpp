#include "link/InstrumentCommands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

#include "platform/AsciiText.h"

namespace brask {

std::string OutputCommand(const CivilDateTime& now) {
    constexpr std::string_view kMonths = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
    const auto month = static_cast<std::size_t>(now.Date.Month - 1) * 3;
    std::array<char, 64> stamp{};
    std::snprintf(stamp.data(), stamp.size(), "-%02d-%04d %02d:%02d:%02d", now.Date.Day,
                  now.Date.Year, now.Hour, now.Minute,
                  // the instrument keeps its time in steps of two seconds
                  now.Second - now.Second % 2);
    return "[OUTPUT " + std::string(kMonths.substr(month, 3)) + stamp.data();
}

void EndOfData::Add(std::string_view block) {
    std::copy_if(block.begin(), block.end(), std::back_inserter(tail_),
                 [](char c) { return c != '\0'; });
    if (met_) lineFeedCame_ = lineFeedCame_ || tail_.find('\n') != std::string::npos;
    if (tail_.size() > kTailLength) tail_.erase(0, tail_.size() - kTailLength);
    if (met_) return;
    constexpr std::string_view kEnd = "END DATA:";
    const auto found = std::search(tail_.begin(), tail_.end(), kEnd.begin(), kEnd.end(),
                                   [](char x, char y) { return LowerCase(x) == LowerCase(y); });
    const auto lineEnd = std::find(found, tail_.end(), '\r');
    if (lineEnd == tail_.end()) return;
    met_ = true;
    lineFeedCame_ = std::find(lineEnd, tail_.end(), '\n') != tail_.end();
    // from here on only a line feed counts
    tail_.clear();
}

}  // namespace brask
