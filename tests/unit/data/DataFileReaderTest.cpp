#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cerrno>
#include <cstring>
#include <random>

#include "data/DataFileReader.h"
#include "data/DateTime.h"

namespace brask {
namespace {

using testing::ElementsAre;

const std::string kLine = "JAN-01-2003 00:05:12,    0.1,  26.1\r\n";

// A file that hands out its bytes in pieces, and may fail in the end.
class PiecesFile final : public InputFile {
  public:
    PiecesFile(std::string_view bytes, std::size_t piece, bool fails)
        : bytes_(bytes), piece_(piece), fails_(fails) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        const std::size_t length = std::min({buffer.size(), piece_, bytes_.size()});
        if (length == 0 && fails_) return Error{EIO, "Input/output error"};
        std::memcpy(buffer.data(), bytes_.data(), length);
        bytes_.remove_prefix(length);
        return length;
    }
    std::uint64_t Size() const override { return bytes_.size(); }

  private:
    std::string_view bytes_;
    std::size_t piece_;
    bool fails_;
};

// Everything that reading a text left behind.
struct Reading final : ReadObserver {
    DataSet Data;
    ReadSummary Summary;
    std::vector<std::string> Reports;
    std::vector<std::int32_t> Counts;
    int Asked = 0;
    int AskedLimit = 1 << 30;  // how often the answer is to go on

    void OnBadLine(const LineReport& report) override {
        Reports.push_back(std::to_string(report.LineNumber) + ":" +
                          std::to_string(static_cast<int>(report.Problem)) + ":" +
                          std::string(report.Field) + ":" + std::string(report.Rewritten) + ":" +
                          std::string(report.Line));
    }
    void OnReadings(std::int32_t count) override { Counts.push_back(count); }
    bool KeepReading() override { return ++Asked <= AskedLimit; }

    void Read(std::string_view bytes, std::size_t piece = 1 << 20, const ReadOptions& options = {},
              bool fails = false) {
        Data.Recreate(0);
        PiecesFile file(bytes, piece, fails);
        Summary = DataFileReader(Data, options, *this).ReadDataFile(file);
    }
    // Readings by their bits, so that -0.0 is not 0.0; headers; reports.
    std::string Everything() const {
        std::string text = Data.InstrumentName + "|" + Data.InstrumentSerialNumber + "|" +
                           Data.InstrumentDate + "|" + Data.InstrumentGas;
        for (const auto values : {Data.Times(), Data.Gas(), Data.Temperatures()}) {
            for (const double value : values) {
                text += "," + std::to_string(std::bit_cast<std::uint64_t>(value));
            }
        }
        for (const std::string& report : Reports) text += "\n" + report;
        return text + (Summary.LoneLineFeeds ? "\nLF" : "");
    }
};

std::string EverythingOf(std::string_view bytes, std::size_t piece, const ReadOptions& options) {
    Reading reading;
    reading.Read(bytes, piece, options);
    return reading.Everything();
}

TEST(DataFileReader, TheReferenceLineUnderEveryDateOrder) {
    for (int order = 0; order < 3; ++order) {
        Reading reading;
        reading.Read(kLine, 1 << 20, {static_cast<LongDateOrder>(order), TemperatureUnit(true)});
        ASSERT_EQ(reading.Data.ReadingCount, 1);
        EXPECT_EQ(FormatReadingTime(reading.Data.ReadingTime[0]), "01-Jan-2003 00:05:12");
        EXPECT_EQ(reading.Data.GasPpm[0], 0.1);
        EXPECT_DOUBLE_EQ(reading.Data.Temperature[0], 78.98);
    }
}

TEST(DataFileReader, WhereverBlocksEndTheResultIsTheSame) {
    const std::string text = "INSTRUMENT: K42\r\nGAS:  CO \r" + kLine + kLine + "\r\n\r\r" +
                             "x: y\nDATE: 1\r\nJAN-01-2003 00:05:12,    abc,  26.1\r\n" + kLine +
                             "FEB-30-2003 00:05:12,    0.1,  26.1\r\n\nJAN-02-2003 "
                             "00:05:12,1e2,-1\r\nEND DATA:      3\n" +
                             "\r" + kLine + "JAN-03-2003 00:05:12,    0.3,  26.1";
    const std::string whole = EverythingOf(text, text.size(), {});
    for (std::size_t piece = 1; piece < text.size(); ++piece) {
        ASSERT_EQ(EverythingOf(text, piece, {}), whole) << "pieces of " << piece;
    }
    Reading reading;
    reading.Read(text);
    EXPECT_EQ(reading.Data.ReadingCount, 5);
    EXPECT_EQ(reading.Reports.size(), 3U) << "a line feed in front of a date stays in it";
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
    const std::size_t aligned = text.size();
    for (const LongDateOrder order : {LongDateOrder::kMonthDayYear, LongDateOrder::kYearMonthDay}) {
        const ReadOptions options{order, TemperatureUnit()};
        EXPECT_EQ(EverythingOf(text, aligned, options), EverythingOf(text, 1, options));
    }
    const char* const edges[] = {"    0.1,  26.1", "   -0.0,  -0.0", "99999.9,9999.9",
                                 "-9999.9,-273.1", "    .1 ,    .1", "  -   1,  - .1",
                                 "    -.5,   -.5", "  1 0.1,  26.1", "    1.0,2 6.1 "};
    for (const char* const values : edges) {
        const std::string line = "DEC-31-2003 23:59:59," + std::string(values) + "\r\n";
        ASSERT_EQ(line.size(), FixedLineParser::kLineLength);
        EXPECT_EQ(EverythingOf(line, 64, {}), EverythingOf(line, 1, {})) << values;
    }
    for (const std::string& date : {std::string(12, '\0'), std::string("DEC-30-1899 ")}) {
        const std::string line = date + kLine.substr(12);
        EXPECT_EQ(EverythingOf(line, 64, {}), EverythingOf(line, 1, {}));
    }
}

TEST(DataFileReader, HeaderLines) {
    struct Case {
        std::string Text;
        std::string Headers;  // name, serial number, date, gas
    };
    const Case cases[] = {
        {"INSTRUMENT: TALVEX K42 \r\nSERIAL NUMBER: 0417\r\nDATE: D\r\nGAS: CO\r\n",
         "TALVEX K42|0417|D|CO"},
        {"serial number: 123\r\n", "|123||"},
        {"GAS:a\r\nGas: b\r\n", "|||b"},
        {"noise DATE: x INSTRUMENT: K42\r\n", "x INSTRUMENT: K42|||"},
        {"my instrument: K42\r\n", "K42|||"},
        {"\n\nDATE: 5\r\n", "||5|"},
        {" DATE: 5\r\nXGAS: 1\r\nSERIAL  NUMBER: 2\r\n", "|||"},
        {"GAS: a:b,c,d\r\n", "|||a:b,c,d"},
        {"GAS:\r\n", "|||"},
        {"GAS: CO\n", "|||CO\n"},
        {"no colon, 1, 2\r\n:\r\n\n:\r\n", "|||"}};
    for (const Case& test : cases) {
        Reading reading;
        reading.Read(test.Text);
        const DataSet& data = reading.Data;
        EXPECT_EQ(data.InstrumentName + "|" + data.InstrumentSerialNumber + "|" +
                      data.InstrumentDate + "|" + data.InstrumentGas,
                  test.Headers)
            << test.Text;
        EXPECT_EQ(data.ReadingCount, 0);
        EXPECT_THAT(reading.Reports, ElementsAre());
    }
    Reading twice;
    twice.Read("SERIAL NUMBER: 1\r\nGAS: CO\r\n");
    twice.Read("GAS: H2S\r\n");
    EXPECT_EQ(twice.Data.InstrumentSerialNumber, "1") << "stays when its line does not come";
    EXPECT_EQ(twice.Data.InstrumentGas, "H2S");
}

TEST(DataFileReader, LinesThatAreNoReadings) {
    struct Case {
        std::string Line;
        std::string Report;  // empty when the line is dropped silently
    };
    const std::string bad = "JAN-01-2003 00:05:12,    abc,  26.1";
    const Case cases[] = {
        {"JAN-01-2003 00:05:12,    0.1", ""},
        {"JAN-01-2003 00:05:12,    0.1,  26.1,", ""},
        {"END DATA:      3", ""},
        {"END DATA:,x,y", "1:0:END DATA::END DATA::END DATA:,x,y"},
        {"2003-01-01 000512,    0.1,  26.1", ""},
        {bad, "1:1:  26.1::" + bad},
        {"JAN-01-2003 00:05:12,0.1,", "1:2:::JAN-01-2003 00:05:12,0.1,"},
        {"JAN-01-2003 00:05:12,abc,def", "1:1:def::JAN-01-2003 00:05:12,abc,def"},
        {"JAN-32-2003 0:05,a,b", "1:0:JAN-32-2003 0:05:JAN-32-2003 0:05:JAN-32-2003 0:05,a,b"},
        {"JAN-01-2003 00:05:12,1e400,1", "1:1:1::JAN-01-2003 00:05:12,1e400,1"}};
    for (const Case& test : cases) {
        Reading reading;
        reading.Read(test.Line + "\r\n");
        EXPECT_EQ(reading.Data.ReadingCount, 0) << test.Line;
        EXPECT_EQ(reading.Summary.RejectedLines, test.Report.empty() ? 0 : 1) << test.Line;
        EXPECT_EQ(testing::PrintToString(reading.Reports),
                  test.Report.empty() ? "{}" : "{ \"" + test.Report + "\" }");
    }
    Reading rewritten;
    rewritten.Read("JAN/41/2003 00:05,1,2\r\n", 99, {LongDateOrder::kDayMonthYear});
    EXPECT_THAT(rewritten.Reports,
                ElementsAre("1:0:JAN/41/2003 00:05:41/01/2003 00:05:JAN/41/2003 00:05,1,2"));
}

TEST(DataFileReader, LineFeedsAloneEndNoLine) {
    const std::string line = kLine.substr(0, 35) + "\n";
    std::string many;
    while (many.size() < DataFileReader::kLongestLine + 10) many += line;
    for (const std::string& text : {line, many}) {
        Reading reading;
        reading.Read(text);
        EXPECT_EQ(reading.Data.ReadingCount, 0);
        EXPECT_TRUE(reading.Summary.LoneLineFeeds);
    }
    Reading good;
    good.Read(kLine + "\r\n" + kLine);
    EXPECT_FALSE(good.Summary.LoneLineFeeds);
}

TEST(DataFileReader, ALineIsDroppedToItsEndOnlyBeyondTheLimit) {
    const std::size_t limit = DataFileReader::kLongestLine;
    for (const std::size_t piece : {std::size_t{1000}, std::size_t{262144}}) {
        for (const std::size_t length : {limit, limit + 1, 3 * limit}) {
            const std::string text = "GAS:" + std::string(length - 4, 'x') + "\r\n" + kLine;
            Reading reading;
            reading.Read(text, piece);
            EXPECT_EQ(reading.Data.ReadingCount, 1);
            EXPECT_EQ(reading.Data.InstrumentGas.size(), length > limit ? 0 : length - 4);
            EXPECT_EQ(reading.Reports.size(), length > limit ? 1U : 0U);
            EXPECT_EQ(reading.Summary.RejectedLines, 0) << "no message is due";
        }
    }
}

TEST(DataFileReader, AReadErrorLosesTheLineThatItCut) {
    Reading reading;
    reading.Read(kLine + kLine.substr(0, 33), 64, {}, true);
    EXPECT_EQ(reading.Data.ReadingCount, 1);
    EXPECT_EQ(reading.Summary.Outcome.Why().Reason, "Input/output error");
    Reading ended;
    ended.Read(kLine + kLine.substr(0, 33), 64);
    EXPECT_EQ(ended.Data.ReadingCount, 2) << "the end of the file ends a line";
}

std::string Lines(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += kLine;
    return text;
}

TEST(DataFileReader, CapacityGrowsWithThe110002ndReading) {
    const std::pair<int, std::int32_t> cases[] = {
        {1, 110000}, {110001, 110000}, {110002, 110502}, {110503, 110502}, {110504, 111004}};
    for (const auto& [count, highest] : cases) {
        Reading reading;
        reading.Read(Lines(count));
        EXPECT_EQ(reading.Data.ReadingCount, count);
        EXPECT_EQ(reading.Data.HighestSlot(), highest);
        EXPECT_EQ(reading.Data.GasPpm.size(), reading.Data.ReadingTime.size());
        EXPECT_EQ(reading.Data.Temperatures().back(), 26.1);
    }
}

TEST(DataFileReader, ProgressEveryHundredReadingsAndCancelAtOnce) {
    Reading reading;
    reading.Read(Lines(350));
    EXPECT_THAT(reading.Counts, ElementsAre(100, 200, 300));

    Reading cancelled;
    cancelled.AskedLimit = 3;
    cancelled.Read(Lines(100000));
    EXPECT_TRUE(cancelled.Summary.Cancelled);
    EXPECT_EQ(cancelled.Asked, 4) << "not asked again";
    EXPECT_LE(cancelled.Data.ReadingCount, 1024);

    Reading withoutCandidates;
    withoutCandidates.AskedLimit = 3;
    withoutCandidates.Read(std::string(10 << 20, 'x'));
    EXPECT_TRUE(withoutCandidates.Summary.Cancelled);
}

}  // namespace
}  // namespace brask
