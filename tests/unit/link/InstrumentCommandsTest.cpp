#include <gtest/gtest.h>

#include <tuple>

#include "link/InstrumentCommands.h"

namespace brask {
namespace {

TEST(InstrumentCommands, OutputTellsTheTimeInEvenSeconds) {
    EXPECT_EQ(OutputCommand({{2004, 1, 5}, 13, 7, 43}), "[OUTPUT JAN-05-2004 13:07:42");
    EXPECT_EQ(OutputCommand({{2004, 12, 31}, 0, 0, 0}), "[OUTPUT DEC-31-2004 00:00:00");
}

TEST(InstrumentCommands, TheEndIsMetWhateverTheBlocks) {
    // the stream; whether its end is met, and with its line feed
    const std::tuple<std::string, bool, bool> cases[] = {
        {"END DATA: 3\r\n", true, true},
        {"end Data: 3\r", true, false},
        {std::string("END\0 DA\0TA: 3\0\r\0\n", 18), true, true},
        {"\rEND DATA: 3\n", false, false},
        {"END DATA 3\r\n", false, false},
        {"END DATA:" + std::string(50, '7') + "\r", true, false},
        {"END DATA:" + std::string(51, '7') + "\r", false, false}};
    for (const auto& [stream, met, lineFeed] : cases) {
        for (std::size_t size = 1; size <= stream.size(); ++size) {
            EndOfData end;
            for (std::size_t at = 0; at < stream.size(); at += size) {
                end.Add(std::string(100, at == 0 ? 'x' : '\0') + stream.substr(at, size));
            }
            EXPECT_EQ(end.Met(), met) << stream << " in " << size;
            EXPECT_EQ(end.LineFeedCame(), lineFeed) << stream << " in " << size;
        }
    }
}

}  // namespace
}  // namespace brask
