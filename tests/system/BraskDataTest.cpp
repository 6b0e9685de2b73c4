#include <sys/stat.h>

#include "ProgramRunner.h"

namespace brask {
namespace {

using testing::PrintToString;

constexpr const char* kHeader =
    "INSTRUMENT: TALVEX \xA9 K42\r\nserial number: 0417\r\nDATE: JAN-01-2003\r\nGAS: CO\r\n";

class BraskData : public ProgramTest {
  protected:
    // Three readings over a midnight, gas and temperature with more than one decimal.
    std::string ThreeReadings() const {
        return Write("three.csv", kHeader + DataLine("JAN-01-2003 23:59:59", "    0.25", "  26.1") +
                                      DataLine("JAN-02-2003 00:00:00", "   -1.5", "  -0.04") +
                                      DataLine("JAN-02-2003 13:07:08", "  100.0", "  20.0") +
                                      "END DATA: 3\r\n");
    }
};

TEST_F(BraskData, InfoDescribesAFile) {
    const std::string file = ThreeReadings();
    const auto info = Json({"info", file});
    EXPECT_EQ(KeysOf(info),
              "file instrument serial_number date gas readings first last gas_min gas_max "
              "temperature_min temperature_max temperature_unit rejected_lines messages");
    EXPECT_STREQ(info["file"].GetString(), file.c_str());
    EXPECT_STREQ(info["instrument"].GetString(), "TALVEX © K42");
    EXPECT_STREQ(info["serial_number"].GetString(), "0417");
    EXPECT_STREQ(info["gas"].GetString(), "CO");
    EXPECT_EQ(info["readings"].GetDouble(), 3);
    EXPECT_STREQ(info["first"].GetString(), "01-Jan-2003 23:59:59");
    EXPECT_STREQ(info["last"].GetString(), "02-Jan-2003 13:07:08");
    EXPECT_EQ(info["gas_min"].GetDouble(), -1.5);
    EXPECT_EQ(info["gas_max"].GetDouble(), 100.0);
    EXPECT_EQ(info["temperature_max"].GetDouble(), 26.1);
    EXPECT_STREQ(info["temperature_unit"].GetString(), "°C");
    EXPECT_EQ(info["rejected_lines"].GetDouble(), 0);
    const auto fahrenheit = Json({"--fahrenheit", "info", file});
    EXPECT_EQ(fahrenheit["temperature_max"].GetDouble(), 9.0 / 5.0 * 26.1 + 32.0);
    EXPECT_STREQ(fahrenheit["temperature_unit"].GetString(), "°F");

    const std::string text = Run({"info", file}).Out;
    EXPECT_NE(text.find("Instrument:     TALVEX © K42\n"), std::string::npos) << text;
    EXPECT_EQ(Listing(), "three.csv");  // looking leaves nothing behind
}

TEST_F(BraskData, ListPrintsTheGrid) {
    const std::string file = ThreeReadings();
    const std::string first = "1,01-Jan-2003 23:59:59,";
    const std::string second = "2,02-Jan-2003 00:00:00,";
    const std::string third = "3,02-Jan-2003 13:07:08,";
    const std::string head = "Result,DATE / TIME,GAS (ppm),Temp (°C),Marker Info\n";
    struct Case {
        std::vector<std::string> Options;
        std::string Expected;
    };
    const std::vector<Case> cases = {
        {{}, head + first + "0.3,26.1,\n" + second + "-1.5,0.0,\n" + third + "100.0,20.0,\n"},
        {{"--exact", "--start", "1"}, head + second + "-1.5,-0.04,\n" + third + "100,20,\n"},
        {{"--start=1", "--count=1"}, head + second + "-1.5,0.0,\n"},
        {{"--start=2", "--count=9223372036854775807"}, head + third + "100.0,20.0,\n"},
        {{"--count", "0"}, head},
        {{"--count=1", "--fahrenheit"},
         "Result,DATE / TIME,GAS (ppm),Temp (°F),Marker Info\n" + first + "0.3,79.0,\n"},
    };
    for (const Case& c : cases) {
        std::vector<std::string> words{"list", file};
        words.insert(words.end(), c.Options.begin(), c.Options.end());
        const Finished listed = Run(words);
        EXPECT_EQ(listed.Status, 0) << PrintToString(c.Options);
        EXPECT_EQ(listed.Out, c.Expected) << PrintToString(c.Options);
    }
    const auto document = Json({"list", file, "--start", "1", "--count", "1"});
    EXPECT_EQ(KeysOf(document), "readings messages");
    ASSERT_EQ(document["readings"].Size(), 1U);
    const auto& reading = document["readings"][0];
    EXPECT_EQ(KeysOf(reading), "result time serial gas temperature markers");
    EXPECT_EQ(reading["result"].GetDouble(), 2);
    EXPECT_EQ(reading["serial"].GetDouble(), 37623.0);
    EXPECT_EQ(reading["temperature"].GetDouble(), -0.04);
    EXPECT_TRUE(reading["markers"].Empty());

    const auto beyond = Json({"list", file, "--start", "3"}, 1);
    EXPECT_TRUE(beyond["readings"].Empty());
    EXPECT_EQ(MessagesOf(beyond),
              std::vector{"There is no reading 3: " + file + " holds 3, counted from 0"});
    EXPECT_EQ(Run({"list", file, "--start", "3"}).Out, "");
}

TEST_F(BraskData, ListHoldsEveryReadingOfALongFile) {
    std::string bytes = kHeader;
    for (int i = 0; i < 20000; ++i) {
        bytes += DataLine("JAN-01-2003 00:05:12", std::to_string(i), "  26.1");
    }
    const auto document = Json({"list", Write("long.csv", bytes)});
    ASSERT_EQ(document["readings"].Size(), 20000U);
    for (rapidjson::SizeType i = 0; i < 20000; ++i) {
        ASSERT_EQ(document["readings"][i]["gas"].GetDouble(), static_cast<double>(i));
    }
}

TEST_F(BraskData, WhatHoldsNoReadingsFails) {
    const std::string line = DataLine("JAN-01-2003 00:05:12", "    0.1", "  26.1");
    ASSERT_EQ(mkfifo(At("pipe").c_str(), 0600), 0);
    struct Case {
        std::string Path;
        const char* Message;  // in front of "No data was read"; empty for none
        const char* Notice = "";
    };
    const std::vector<Case> cases = {
        {At("missing.csv"), "No such file or directory"},
        {At(""), "Is a directory"},
        {At("pipe"), "not a regular file"},
        {"/dev/zero", "not a regular file"},
        {Write("empty.csv", ""), ""},
        {Write("header.csv", kHeader), ""},
        {Write("lf.csv", "GAS: CO\nJAN-01-2003 00:05:12,    0.1,  26.1\n"), "",
         "lf.csv has no CR LF line ends"},
        {Write("four.csv", "JAN-01-2003 00:05:12,    0.1,  26.1,\r\n"), ""},
        {Write("Temp/data.csv", line), ""},
        {Write("binary.csv", std::string("\0\xFF,:\x1B[2J,\x90\r\r,,:\r", 15)), nullptr},
    };
    for (const Case& c : cases) {
        for (const char* command : {"info", "list", "curves"}) {
            const auto document = Json({command, c.Path}, 1);
            const auto messages = MessagesOf(document);
            ASSERT_FALSE(messages.empty()) << c.Path;
            EXPECT_EQ(messages.back(), "No data was read") << c.Path;
            if (c.Message == nullptr) continue;
            EXPECT_EQ(messages.size(), c.Message[0] == '\0' ? 1U : 2U) << c.Path;
            EXPECT_NE(messages.front().find(c.Message), std::string::npos) << messages.front();
        }
        const Finished text = Run({"info", c.Path});
        EXPECT_EQ(text.Status, 1) << c.Path;
        EXPECT_EQ(text.Out, "") << c.Path;
        EXPECT_NE(text.Error.find(c.Notice), std::string::npos) << text.Error;
        EXPECT_EQ(text.Error.find('\x1B'), std::string::npos) << c.Path;
    }
    EXPECT_TRUE(Json({"info", At("empty.csv")}, 1)["first"].IsNull());
    EXPECT_TRUE(Json({"info", At("empty.csv")}, 1)["gas_min"].IsNull());
}

TEST_F(BraskData, BadLinesAreReportedAndTheRestIsRead) {
    const std::string file =
        Write("odd.csv", DataLine("JAN-33-2003 00:05:12", "    0.1", "  26.1") +
                             DataLine("JAN-01-2003 00:05:12", "    abc", "  26.1") +
                             DataLine("JAN-01-2003 00:05:12", "    0.1",
                                      "\xE9"
                                      "1e400") +
                             DataLine("JAN-01-2003 00:05:12", "    0.1", "  1e308") +
                             std::string(3000000, 'x') + "\r\n" +
                             DataLine("JAN-01-2003 00:05:13", "    0.2", "  26.1"));
    const auto info = Json({"info", file, "--fahrenheit"});
    EXPECT_EQ(info["readings"].GetDouble(), 2);
    EXPECT_EQ(info["rejected_lines"].GetDouble(), 3);
    EXPECT_EQ(info["gas_max"].GetDouble(), 0.2);
    EXPECT_TRUE(info["temperature_max"].IsNull());  // beyond any number in °F
    const std::string ignored = "\r\nIgnoring this line of data";
    EXPECT_EQ(MessagesOf(info),
              (std::vector<std::string>{
                  "Date of JAN-33-2003 00:05:12 [Input as JAN-33-2003 00:05:12] is invalid\r\n"
                  "Original Line=JAN-33-2003 00:05:12,    0.1,  26.1" +
                      ignored,
                  "Gas PPM   26.1 is invalid\r\n"
                  "Original Line=JAN-01-2003 00:05:12,    abc,  26.1" +
                      ignored,
                  "Temperature of é1e400 is invalid\r\n"
                  "Original Line=JAN-01-2003 00:05:12,    0.1,é1e400" +
                      ignored}));
    const Finished text = Run({"info", file});
    EXPECT_EQ(text.Status, 0);
    EXPECT_NE(text.Error.find("Ignoring this line of data\nGas PPM   26.1"), std::string::npos);
}

TEST_F(BraskData, TheDateOrderDecidesHowDatesAreRead) {
    struct Case {
        const char* Order;
        const char* Time;
        const char* Expected;  // null when the line is rejected
    };
    const Case cases[] = {
        {"mdy", "01/02/2003 00:05:12", "02-Jan-2003 00:05:12"},
        {"mdy", "JAN/02/2003 00:05:12", nullptr},
        {"dmy", "JAN/02/2003 00:05:12", "02-Jan-2003 00:05:12"},
        {"dmy", "01/02/2003 00:05:12", nullptr},
        {"ymd", "JAN/02/2003 00:05:12", nullptr},
        {"dmy", "JAN-02-2003 00:05:12", "02-Jan-2003 00:05:12"},
        {"ymd", "JAN-02-2003 00:05:12", "02-Jan-2003 00:05:12"},
    };
    for (const Case& c : cases) {
        const std::string file = Write("dates.csv", DataLine(c.Time, "0.1", "26.1"));
        const auto info = Json({"info", file, "--date-order", c.Order}, c.Expected ? 0 : 1);
        EXPECT_EQ(info["rejected_lines"].GetDouble(), c.Expected ? 0 : 1) << c.Time;
        const char* first = c.Expected ? info["first"].GetString() : nullptr;
        EXPECT_STREQ(first, c.Expected) << c.Order << " " << c.Time;
    }
}

TEST_F(BraskData, ExpandWritesTheDataFileWholeOrNotAtAll) {
    const std::string raw = Write("raw",
                                  "junk INSTRUMENT: X\r\nAB\r\n\x82"
                                  "C\r\nunfinished");
    Write("out.csv", "old");
    const auto document = Json({"expand", raw, "-o", At("out.csv")});
    EXPECT_EQ(KeysOf(document), "file lines messages");
    EXPECT_STREQ(document["file"].GetString(), At("out.csv").c_str());
    EXPECT_EQ(document["lines"].GetDouble(), 3);
    EXPECT_EQ(Read("out.csv"), "INSTRUMENT: X\r\nAB\r\nABC\r\n");

    EXPECT_EQ(Run({"expand", raw, "-o", raw}).Out, raw + ": 3 lines\n");
    EXPECT_EQ(Read("raw"), Read("out.csv"));
    for (const std::string& source : {At("missing"), At("")}) {
        const auto failed = Json({"expand", source, "-o", At("out.csv")}, 1);
        EXPECT_TRUE(failed["file"].IsNull());
        EXPECT_EQ(MessagesOf(failed).size(), 1U);
    }
    EXPECT_EQ(Run({"expand", raw, "-o", At("")}).Status, 1);
    EXPECT_EQ(Run({"expand", raw, "-o", At("no/such/folder")}).Status, 1);
    EXPECT_EQ(Listing(), "out.csv raw");
}

TEST_F(BraskData, CurvesAreThoseOfTheLayout) {
    const std::string file = ThreeReadings();
    const auto continuous = Json({"curves", file});
    EXPECT_EQ(KeysOf(continuous), "title title_size caption x y y1 curves messages");
    EXPECT_STREQ(continuous["title"].GetString(),
                 "VEK Talvex© K42, Instrument: TALVEX © K42,  S/N:0417");
    EXPECT_EQ(continuous["y"]["minimum"].GetDouble(), -0.1);
    EXPECT_EQ(continuous["y1"]["maximum"].GetDouble(), 26.1 + 5);
    ASSERT_EQ(continuous["curves"].Size(), 2U);
    const auto& gas = continuous["curves"][0];
    EXPECT_EQ(KeysOf(gas), "name axis color line style x y");
    EXPECT_EQ(gas["style"].GetDouble(), 8);
    EXPECT_EQ(gas["x"].Size(), 3U);
    EXPECT_EQ(gas["y"][2].GetDouble(), 100.0);

    const auto days = Json({"curves", file, "--layout=days", "--no-data-points"});
    ASSERT_EQ(days["curves"].Size(), 4U);
    EXPECT_EQ(days["x"]["maximum"].GetDouble(), 24.0);
    const auto& second = days["curves"][3];
    EXPECT_STREQ(second["name"].GetString(), "02-Jan-2003 Temp");
    EXPECT_STREQ(second["axis"].GetString(), "right");
    EXPECT_STREQ(second["line"].GetString(), "dotted");
    EXPECT_STREQ(second["color"].GetString(), "00-00-FF");
    EXPECT_EQ(second["style"].GetDouble(), 0);
    EXPECT_EQ(days["curves"][0]["style"].GetDouble(), 2);

    // 1 January 2003 was a Wednesday
    const auto weeks = Json({"curves", file, "--layout", "weeks", "--start-week", "monday"});
    EXPECT_EQ(weeks["curves"].Size(), 2U);
    EXPECT_EQ(weeks["curves"][0]["x"][1].GetDouble(), 3.0);
}

}  // namespace
}  // namespace brask
