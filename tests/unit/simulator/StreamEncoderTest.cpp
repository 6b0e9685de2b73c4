#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "data/ReceivedFileExpander.h"
#include "link/InstrumentMemory.h"
#include "link/StreamEncoder.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

using namespace std::string_literals;

const EnglishTexts kTexts;

// What a receiver makes of a data file after the transfer.
std::string RoundTrip(const std::string& file) {
    const auto memory = InstrumentMemory::Read(file, kTexts);
    if (!memory.Ok()) return memory.Why().Reason;
    MemoryFiles disk;
    disk.Contents["/raw"] = EncodeStream(memory.Value().Lines());
    EXPECT_TRUE(ReceivedFileExpander(disk).ExpandReceivedFile("/raw", "/data").Ok());
    return disk.Contents["/data"];
}

std::string Repeat(int count) { return {static_cast<char>(128 + count)}; }

TEST(StreamEncoder, CodesStandWhereTheySaveBytesAndNowhereElse) {
    const std::string a128(128, 'a');
    const std::string a129(129, 'a');
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{}, ""},
        {{"aaaa", "aaaa"}, "aaaa\r\n" + Repeat(6)},
        {{"abcX", "abcY"}, "abcX\r\n" + Repeat(3) + "Y" + Repeat(2)},
        {{"abc", "Xb"}, "abc\r\nXb\r\n"},  // single characters and a line end at another column
        {{"", ""}, "\r\n" + Repeat(2)},
        {{a128 + "x", a128 + "y"}, a128 + "x\r\n" + Repeat(127) + "ay" + Repeat(2)},
        {{a129, a129}, a129 + "\r\n" + Repeat(127) + Repeat(4)},
        {{"END DATA: 1", "END DATA: 1", "END DATA: 1x"},
         "END DATA: 1\r\nEND DATA: 1\r\nEND DATA: 1x\r\n"},
        {{"END DATA: 1", "end data: 1"}, "END DATA: 1\r\nend data" + Repeat(5)},
    };
    for (const auto& [lines, stream] : cases) {
        EXPECT_EQ(EncodeStream(lines), stream) << testing::PrintToString(lines);
    }
}

TEST(InstrumentMemory, TakesDataFilesAsTheyAreAndRefusesWhatTheLinkCannotCarry) {
    const std::string line = "JAN-01-2003 00:05:12,    0.1,  26.1";
    const std::pair<std::string, std::string> cases[] = {
        {"", "END DATA:      0\r\n"},
        {"INSTRUMENT: K\r\n" + line + "\r\n",
         "INSTRUMENT: K\r\n" + line + "\r\nEND DATA:      1\r\n"},
        {line + "\n" + line, line + "\r\n" + line + "\r\nEND DATA:      2\r\n"},
        {"end data: 0\r\n", "end data: 0\r\nEND DATA:      0\r\n"},
        {"a\r\r\n\r\n\r", "a\r\r\n\r\n\r\r\nEND DATA:      0\r\n"},
        {"INSTRUMENT: 1\r\nx INSTRUMENT: 2\r\nEND DATA: 0\r\n",
         "INSTRUMENT: 1\r\nx INSTRUMENT: 2\r\nEND DATA: 0\r\n"},
        {"a\r\n\0"s, "line 2 holds a byte 0 or above 127, which the link cannot carry"},
        {"\x80", "line 1 holds a byte 0 or above 127, which the link cannot carry"},
        {"\r\nx INSTRUMENT: 1",
         "line 2 has text in front of INSTRUMENT:, which every receiver drops"},
    };
    for (const auto& [file, expanded] : cases) EXPECT_EQ(RoundTrip(file), expanded) << file;
}

TEST(StreamEncoder, WhatTheReceiverExpandsIsTheFile) {
    std::mt19937 random(20040305);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    for (int file = 0; file < 2000; ++file) {
        std::string text = "INSTRUMENT: K\r\n";
        std::string line;
        for (std::size_t lines = below(20); lines > 0; --lines) {
            // mostly like the line above, in parts shorter and longer than a code can say
            const std::size_t kept = below(4) == 0 ? 0 : below(line.size() + 1);
            line.resize(kept);
            for (std::size_t rest = below(below(10) == 0 ? 500 : 40); rest > 0; --rest) {
                line += static_cast<char>(below(20) == 0 ? 1 + below(127) : 'a' + below(2));
                if (line.back() == '\n') line.back() = ',';
            }
            text += line + "\r\n";
        }
        text += "END DATA:      0\r\n";
        ASSERT_EQ(RoundTrip(text), text);
    }
    // many blocks of the receiver
    std::ifstream file(BRASK_SAMPLES "/air-quality-year.csv", std::ios::binary);
    const std::string year(std::istreambuf_iterator<char>(file), {});
    const std::string years = year + year + year + year;
    EXPECT_EQ(RoundTrip(years), years);
    EXPECT_GT(EncodeStream(InstrumentMemory::Read(years, kTexts).Value().Lines()).size(), 250000U);
}

}  // namespace
}  // namespace brask
