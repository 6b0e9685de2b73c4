#include <gtest/gtest.h>

#include "data/ReceivedFileExpander.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

std::string Repeat(int count) { return {static_cast<char>(128 + count)}; }

class ReceivedFileExpanderTest : public testing::Test {
  protected:
    std::string Expand(const std::string& raw) {
        disk_.Contents["/raw"] = raw;
        const auto lines = expander_.ExpandReceivedFile("/raw", "/data.csv");
        EXPECT_TRUE(lines.Ok());
        lines_ = lines.Ok() ? lines.Value() : -1;
        return disk_.Contents["/data.csv"];
    }

    MemoryFiles disk_;
    ReceivedFileExpander expander_{disk_};
    std::int64_t lines_ = 0;
};

TEST(ReceivedFileExpander, Streams) {
    const std::string nul(1, '\0');
    struct Case {
        std::string Raw;
        std::string Data;
    };
    const Case cases[] = {
        {"AB\r\n" + Repeat(2) + "C\r\n", "AB\r\nABC\r\n"},
        {"AB" + nul + "\r" + nul + nul + "\n" + nul + Repeat(1) + nul + "X\r\n", "AB\r\nAX\r\n"},
        {"ABCD\r\nx" + Repeat(2) + "y" + Repeat(127), "ABCD\r\nxBCy\r\n"},
        {"ABCD\r\n" + Repeat(127) + Repeat(127), "ABCD\r\nABCD\r\nABCD\r\n"},
        {"A\r\nlonger" + Repeat(5) + "\r\n", "A\r\nlonger\r\n"},
        {Repeat(9) + "A\r\n" + Repeat(0) + "B\r\n", "A\r\nB\r\n"},
        {"AB\n" + Repeat(2) + "C\r\n", "A\r\nABC\r\n"},
        {"\n\r\nA\n", "\r\n\r\n\r\n"},
        {"AB\r\nunfinished", "AB\r\n"},
        {"", ""},
        {"first\r\njunkINSTRUMENT: K42\r\nxINSTRUMENT: y\r\n",
         "first\r\nINSTRUMENT: K42\r\nxINSTRUMENT: y\r\n"},
        {"xinstrument: K42\r\n", "xinstrument: K42\r\n"},
        {"junkINSTRUMENT: K42\r\n" + Repeat(4) + "\r\n", "INSTRUMENT: K42\r\nINST\r\n"}};
    for (const Case& test : cases) {
        MemoryFiles disk;
        disk.Contents["/raw"] = test.Raw;
        const auto lines = ReceivedFileExpander(disk).ExpandReceivedFile("/raw", "/data.csv");
        ASSERT_TRUE(lines.Ok());
        EXPECT_EQ(disk.Contents["/data.csv"], test.Data);
        EXPECT_EQ(lines.Value(), std::count(test.Data.begin(), test.Data.end(), '\n'));
    }
}

TEST_F(ReceivedFileExpanderTest, ThePreviousLineSurvivesToTheNextTransfer) {
    EXPECT_EQ(Expand("INSTRUMENT: K42\r\nunfinished"), "INSTRUMENT: K42\r\n");
    EXPECT_EQ(Expand("x" + Repeat(4) + "\r\n"), "xNSTR\r\n") << "not the unfinished line";
    EXPECT_EQ(Expand("yyINSTRUMENT: 2\r\n"), "INSTRUMENT: 2\r\n") << "seen anew in each transfer";
}

// Compresses as the instrument does and expands across many blocks.
TEST_F(ReceivedFileExpanderTest, LongTransfersComeBackWhole) {
    std::string data;
    std::string raw;
    std::string previous;
    for (int i = 0; i < 20000; ++i) {
        const std::string number = std::to_string(i * 7919 % 100000);
        const std::string line =
            "JAN-01-2003 00:00:00," + std::string(7 - number.size(), ' ') + number + "\r\n";
        std::size_t same = 0;
        while (same < previous.size() && line[same] == previous[same]) ++same;
        if (same > 0) raw += Repeat(static_cast<int>(same));
        raw += line.substr(same);
        if (i % 50 == 0) raw += std::string(static_cast<std::size_t>(i % 700), '\0');
        data += line;
        previous = line;
    }
    ASSERT_GT(raw.size(), 90000U);
    EXPECT_EQ(Expand(raw), data);
    EXPECT_EQ(lines_, 20000);
}

TEST_F(ReceivedFileExpanderTest, FailureAtEveryStepLeavesTheOldDataFile) {
    bool done = false;
    for (int at = 0; !done; ++at) {
        disk_.Contents = {{"/raw", "AB\r\nC\r\n"}, {"/data.csv", "old"}};
        disk_.Operations = 0;
        disk_.FailAt = at;
        done = expander_.ExpandReceivedFile("/raw", "/data.csv").Ok();
        EXPECT_EQ(disk_.Contents["/data.csv"], done ? "AB\r\nC\r\n" : "old");
        EXPECT_EQ(disk_.Contents["/raw"], "AB\r\nC\r\n");
        ASSERT_LT(at, 20);
    }
}

}  // namespace
}  // namespace brask
