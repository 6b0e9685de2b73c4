#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <random>

#include "data/DataFileReader.h"
#include "data/DateTime.h"

namespace brask {
namespace {

using testing::ElementsAre;

const std::string kLine = "JAN-01-2003 00:05:12,    0.1,  26.1\r\n";

// A file that hands out its bytes in pieces.
class PiecesFile final : public InputFile {
  public:
    PiecesFile(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        const std::size_t length = std::min({buffer.size(), piece_, bytes_.size()});
        std::memcpy(buffer.data(), bytes_.data(), length);
        bytes_.remove_prefix(length);
        return length;
    }
    std::uint64_t Size() const override { return bytes_.size(); }

  private:
    std::string_view bytes_;
    std::size_t piece_;
};

// Everything that reading a text left behind.
struct Reading final : ReadObserver {
    DataSet Data;
    ReadSummary Summary;
    std::vector<std::string> Reports;
    std::vector<std::int32_t> Counts;
    int Asked = 0;
    int AskedLimit;  // how often the answer is to go on

    explicit Reading(std::string_view bytes, std::size_t piece = 1 << 20,
                     LongDateOrder order = LongDateOrder::kMonthDayYear, int askedLimit = 1 << 30)
        : AskedLimit(askedLimit) {
        Read(bytes, piece, order);
    }
    void Read(std::string_view bytes, std::size_t piece, LongDateOrder order) {
        Data.Recreate(0);
        PiecesFile file(bytes, piece);
        Summary = DataFileReader(Data, {order, TemperatureUnit()}, *this).ReadDataFile(file);
    }
    void OnBadLine(const LineReport& report) override {
        Reports.push_back(std::to_string(report.LineNumber) + ":" +
                          std::to_string(static_cast<int>(report.Problem)) + ":" +
                          std::string(report.Field) + ":" + std::string(report.Rewritten) + ":" +
                          std::string(report.Line));
    }
    void OnReadings(std::int32_t count) override { Counts.push_back(count); }
    bool KeepReading() override { return ++Asked <= AskedLimit; }

    std::string Headers() const {
        return Data.InstrumentName + "|" + Data.InstrumentSerialNumber + "|" + Data.InstrumentDate +
               "|" + Data.InstrumentGas;
    }
    // Readings by their bits, so that -0.0 is not 0.0; headers; reports.
    std::string Everything() const {
        std::string text = Headers();
        for (const auto values : {Data.Times(), Data.Gas(), Data.Temperatures()}) {
            for (const double value : values) {
                text += "," + std::to_string(std::bit_cast<std::uint64_t>(value));
            }
        }
        for (const std::string& report : Reports) text += "\n" + report;
        return text + (Summary.LoneLineFeeds ? "\nLF" : "");
    }
};

TEST(DataFileReader, WhereverBlocksEndTheResultIsTheSame) {
    const std::string text = "INSTRUMENT: K42\r\nGAS:  CO \r" + kLine + kLine + "\r\n\r\r" +
                             "x: y\nDATE: 1\r\nJAN-01-2003 00:05:12,    abc,  26.1\r\n" + kLine +
                             "FEB-30-2003 00:05:12,    0.1,  26.1\r\n\nJAN-02-2003 "
                             "00:05:12,1e2,-1\r\nEND DATA:      3\n\r" +
                             kLine + "JAN-03-2003 00:05:12,    0.3,  26.1";
    const Reading whole(text);
    EXPECT_EQ(whole.Reports.size(), 3U) << "a line feed in front of a date stays in it";
    for (std::size_t piece = 1; piece < text.size(); ++piece) {
        ASSERT_EQ(Reading(text, piece).Everything(), whole.Everything()) << "pieces of " << piece;
    }
}

// One-byte pieces always take the general path, a whole block the fast one.
TEST(DataFileReader, TheFastPathReadsWhatTheGeneralPathReads) {
    std::mt19937 random(1);
    const std::string bytes = "0123456789 .,-:+eEJFMb/\r\nxAN";
    std::string text;
    for (int i = 0; i < 30000; ++i) {
        std::string line = kLine;
        for (unsigned changes = random() % 4; changes > 0; --changes) {
            // the date mostly stays one, or every line would end as a bad date
            const std::size_t at = random() % 8 == 0 ? random() % 37 : 12 + random() % 25;
            line[at] = bytes[random() % bytes.size()];
        }
        text += line + kLine;
    }
    for (const LongDateOrder order : {LongDateOrder::kMonthDayYear, LongDateOrder::kYearMonthDay}) {
        EXPECT_EQ(Reading(text, text.size(), order).Everything(),
                  Reading(text, 1, order).Everything());
    }
    std::vector<std::string> edges = {std::string(12, '\0') + kLine.substr(12),
                                      "DEC-30-1899 " + kLine.substr(12)};
    for (const char* const values :
         {"   -0.0,  -0.0", "99999.9,9999.9", "-9999.9,-273.1", "    .1 ,    .1", "  -   1,  - .1",
          "    -.5,   -.5", "  1 0.1,  26.1", "    1.0,2 6.1 "}) {
        edges.push_back("DEC-31-2003 23:59:59," + std::string(values) + "\r\n");
    }
    for (const std::string& line : edges) {
        ASSERT_EQ(line.size(), FixedLineParser::kLineLength);
        EXPECT_EQ(Reading(line).Everything(), Reading(line, 1).Everything()) << line;
    }
}

TEST(DataFileReader, HeaderLines) {
    // the headers: name, serial number, date, gas
    const std::pair<const char*, const char*> cases[] = {
        {"INSTRUMENT: TALVEX K42 \r\nSERIAL NUMBER: 0417\r\nDATE: D\r\nGAS: CO\r\n",
         "TALVEX K42|0417|D|CO"},
        {"serial number: 123\r\nGAS:a\r\nGas: b\r\n", "|123||b"},
        {"noise DATE: x INSTRUMENT: K42\r\n", "x INSTRUMENT: K42|||"},
        {"my instrument: K42\r\n\n\nDATE: 5\r\n", "K42||5|"},
        {" DATE: 5\r\nXGAS: 1\r\nno colon, 1, 2\r\n:\r\n\n:\r\nGAS:\r\n", "|||"},
        {"GAS: a:b,c,d\n", "|||a:b,c,d\n"}};
    for (const auto& [text, headers] : cases) {
        const Reading reading(text);
        EXPECT_EQ(reading.Headers(), headers) << text;
        EXPECT_THAT(reading.Reports, ElementsAre());
    }
    Reading twice("SERIAL NUMBER: 1\r\nGAS: CO\r\n");
    twice.Read("GAS: H2S\r\n", 99, LongDateOrder::kMonthDayYear);
    EXPECT_EQ(twice.Headers(), "|1||H2S") << "stays when its line does not come";
}

TEST(DataFileReader, LinesThatAreNoReadings) {
    struct Case {
        std::string Line;
        std::string Report;  // without the line; empty when the line is dropped silently
        LongDateOrder Order = LongDateOrder::kMonthDayYear;
    };
    const Case cases[] = {{"JAN-01-2003 00:05:12,    0.1", ""},
                          {"JAN-01-2003 00:05:12,    0.1,  26.1,", ""},
                          {"2003-01-01 000512,    0.1,  26.1", ""},
                          {"END DATA:,x,y", "1:0:END DATA::END DATA::"},
                          {"JAN-01-2003 00:05:12,    abc,  26.1", "1:1:  26.1::"},
                          {"JAN-01-2003 00:05:12,0.1,", "1:2:::"},
                          {"JAN-32-2003 0:05,a,b", "1:0:JAN-32-2003 0:05:JAN-32-2003 0:05:"},
                          {"JAN-01-2003 00:05:12,1e400,1", "1:1:1::"},
                          {"JAN/41/2003 00:05,1,2", "1:0:JAN/41/2003 00:05:41/01/2003 00:05:",
                           LongDateOrder::kDayMonthYear}};
    for (const auto& [line, report, order] : cases) {
        const Reading reading(line + "\r\n", 99, order);
        EXPECT_EQ(reading.Summary.RejectedLines, report.empty() ? 0 : 1) << line;
        std::vector<std::string> expected;
        if (!report.empty()) expected.push_back(report + line);
        EXPECT_EQ(reading.Reports, expected);
    }
}

TEST(DataFileReader, LineFeedsAloneEndNoLine) {
    std::string many;
    while (many.size() < DataFileReader::kLongestLine + 10) many += kLine.substr(0, 35) + "\n";
    for (const std::string& text : {many.substr(0, 36), many}) {
        const Reading reading(text);
        EXPECT_EQ(reading.Data.ReadingCount, 0);
        EXPECT_TRUE(reading.Summary.LoneLineFeeds);
    }
    EXPECT_FALSE(Reading(kLine + "\r\n" + kLine).Summary.LoneLineFeeds);
}

TEST(DataFileReader, ALineIsDroppedToItsEndOnlyBeyondTheLimit) {
    const std::size_t limit = DataFileReader::kLongestLine;
    for (const std::size_t length : {limit, limit + 1, 3 * limit}) {
        const Reading reading("GAS:" + std::string(length - 4, 'x') + "\r\n" + kLine, 1000);
        EXPECT_EQ(reading.Data.ReadingCount, 1);
        EXPECT_EQ(reading.Data.InstrumentGas.size(), length > limit ? 0 : length - 4);
    }
}

std::string Lines(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += kLine;
    return text;
}

TEST(DataFileReader, CapacityGrowsWithTheReadings) {
    for (const std::size_t count : {110001U, 110002U, 110503U, 110504U}) {
        EXPECT_EQ(Reading(Lines(count)).Data.Temperatures().size(), count);
    }
}

TEST(DataFileReader, ProgressEveryHundredReadingsAndCancelAtOnce) {
    EXPECT_THAT(Reading(Lines(350)).Counts, ElementsAre(100, 200, 300));
    for (const std::string& text : {Lines(100000), std::string(10 << 20, 'x')}) {
        const Reading cancelled(text, 1 << 20, LongDateOrder::kMonthDayYear, 3);
        EXPECT_TRUE(cancelled.Summary.Cancelled);
        EXPECT_EQ(cancelled.Asked, 4) << "not asked again";
        EXPECT_LE(cancelled.Data.ReadingCount, 1024);
    }
}

}  // namespace
}  // namespace brask
