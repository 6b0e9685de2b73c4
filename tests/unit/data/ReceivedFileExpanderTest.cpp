#include <gtest/gtest.h>

#include <algorithm>

#include "data/ReceivedFileExpander.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

std::string Repeat(int count) { return {static_cast<char>(128 + count)}; }

struct Transfers {
    // Also holds the number of lines that was reported against the one that was written.
    std::string Expand(const std::string& raw) {
        Disk.Contents["/raw"] = raw;
        const auto lines = Expander.ExpandReceivedFile("/raw", "/data.csv");
        const std::string& data = Disk.Contents["/data.csv"];
        EXPECT_EQ(lines.Ok() ? lines.Value() : -1, std::count(data.begin(), data.end(), '\n'));
        return data;
    }

    MemoryFiles Disk;
    ReceivedFileExpander Expander{Disk};
};

TEST(ReceivedFileExpander, Streams) {
    const std::string nul(1, '\0');
    const std::pair<std::string, std::string> cases[] = {
        {"AB\r\n" + Repeat(2) + "C\r\n", "AB\r\nABC\r\n"},
        {"AB" + nul + "\r" + nul + nul + "\n" + nul + Repeat(1) + nul + "X\r\n", "AB\r\nAX\r\n"},
        {"ABCD\r\nx" + Repeat(2) + "y" + Repeat(127), "ABCD\r\nxBCy\r\n"},
        {"ABCD\r\n" + Repeat(127) + Repeat(127), "ABCD\r\nABCD\r\nABCD\r\n"},
        {"A\r\nlonger" + Repeat(5) + "\r\n", "A\r\nlonger\r\n"},
        {Repeat(9) + "A\r\n" + Repeat(0) + "B\r\n", "A\r\nB\r\n"},
        {"AB\n" + Repeat(2) + "C\r\n", "A\r\nABC\r\n"},
        {"AB\r\nunfinished", "AB\r\n"},
        {"1\r\njunkINSTRUMENT: K42\r\nx" + Repeat(4) + "RUMENT: y\r\n",
         "1\r\nINSTRUMENT: K42\r\nxNSTRRUMENT: y\r\n"}};
    for (const auto& [raw, data] : cases) EXPECT_EQ(Transfers().Expand(raw), data);
}

TEST(ReceivedFileExpander, ThePreviousLineSurvivesToTheNextTransfer) {
    Transfers transfers;
    EXPECT_EQ(transfers.Expand("INSTRUMENT: K42\r\nunfinished"), "INSTRUMENT: K42\r\n");
    EXPECT_EQ(transfers.Expand("x" + Repeat(4) + "\r\n"), "xNSTR\r\n") << "not the unfinished line";
    EXPECT_EQ(transfers.Expand("yyINSTRUMENT: 2\r\n"), "INSTRUMENT: 2\r\n")
        << "seen anew in each transfer";
}

TEST(ReceivedFileExpander, FailureAtEveryStepLeavesTheOldDataFile) {
    Transfers transfers;
    MemoryFiles& disk = transfers.Disk;
    bool done = false;
    for (int at = 0; !done; ++at) {
        disk.Contents = {{"/raw", "AB\r\nC\r\n"}, {"/data.csv", "old"}};
        disk.Operations = 0;
        disk.FailAt = at;
        done = transfers.Expander.ExpandReceivedFile("/raw", "/data.csv").Ok();
        EXPECT_EQ(disk.Contents["/data.csv"], done ? "AB\r\nC\r\n" : "old");
        EXPECT_EQ(disk.Contents["/raw"], "AB\r\nC\r\n");
        ASSERT_LT(at, 20);
    }
}

}  // namespace
}  // namespace brask
