// The expander that one would write first: takes a character, appends a character.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace brask::bench {

// The number of lines. Same form of the data as ReceivedFileExpander, without its header rule.
inline std::int64_t ExpandByCharacter(const std::string& rawPath, const std::string& dataPath) {
    std::ifstream raw(rawPath, std::ios::binary);
    std::ofstream data(dataPath, std::ios::binary);
    std::string block(30000, '\0');
    std::string line;
    std::string previous;
    std::int64_t lines = 0;
    while (raw.read(block.data(), static_cast<std::streamsize>(block.size())) || raw.gcount() > 0) {
        for (std::streamsize i = 0; i < raw.gcount(); ++i) {
            const auto byte = static_cast<unsigned char>(block[static_cast<std::size_t>(i)]);
            if (byte == 0) continue;
            if (byte < 128) line += static_cast<char>(byte);
            for (int repeat = 128; repeat < byte && line.size() < previous.size(); ++repeat) {
                line += previous[line.size()];
            }
            if (line.empty() || line.back() != '\n') continue;
            data << line;
            previous = line;
            line.clear();
            ++lines;
        }
    }
    return lines;
}

}  // namespace brask::bench
