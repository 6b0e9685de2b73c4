#include "link/StreamEncoder.h"

#include <algorithm>
#include <string_view>

#include "link/InstrumentMemory.h"

namespace brask {
namespace {

constexpr std::size_t kFirstRepeat = 128;
constexpr std::size_t kLongestRepeat = 127;
// A code for one character would be as long as the character.
constexpr std::size_t kShortestRepeat = 2;

std::size_t CommonLength(std::string_view a, std::string_view b) {
    const std::size_t length = std::min(a.size(), b.size());
    return static_cast<std::size_t>(
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(length), b.begin()).first -
        a.begin());
}

void AppendRepeating(std::string& stream, std::string_view line, std::string_view previous) {
    for (std::size_t column = 0; column < line.size();) {
        const std::size_t common = column < previous.size()
                                       ? CommonLength(line.substr(column), previous.substr(column))
                                       : 0;
        if (common < kShortestRepeat) {
            stream += line[column++];
            continue;
        }
        const std::size_t repeat = std::min(common, kLongestRepeat);
        stream += static_cast<char>(kFirstRepeat + repeat);
        column += repeat;
    }
}

}  // namespace

std::string EncodeStream(std::span<const std::string> lines) {
    std::string stream;
    std::string previous;
    bool first = true;
    for (const std::string& text : lines) {
        std::string line = text + "\r\n";
        if (first || IsEndOfDataLine(text)) {
            stream += line;
        } else {
            AppendRepeating(stream, line, previous);
        }
        previous = std::move(line);
        first = false;
    }
    return stream;
}

}  // namespace brask
