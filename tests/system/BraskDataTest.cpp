#include "ProgramRunner.h"

namespace brask {
namespace {

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
    EXPECT_STREQ(info["instrument"].GetString(), "TALVEX © K42");
    EXPECT_EQ(info["readings"].GetDouble(), 3);
    EXPECT_STREQ(info["first"].GetString(), "01-Jan-2003 23:59:59");
    EXPECT_EQ(info["gas_min"].GetDouble(), -1.5);
    const auto fahrenheit = Json({"--fahrenheit", "info", file});
    EXPECT_EQ(fahrenheit["temperature_max"].GetDouble(), 9.0 / 5.0 * 26.1 + 32.0);
    EXPECT_STREQ(fahrenheit["temperature_unit"].GetString(), "°F");

    const std::string text = Run({"info", file}).Out;
    EXPECT_NE(text.find("Instrument:     TALVEX © K42\n"), std::string::npos) << text;
    EXPECT_EQ(Listing(), "three.csv");  // looking leaves nothing behind
}

TEST_F(BraskData, ListPrintsTheGrid) {
    const std::string file = ThreeReadings();
    const std::string head = "Result,DATE / TIME,GAS (ppm),Temp (°C),Marker Info\n";
    const std::string firstTwo =
        "1,01-Jan-2003 23:59:59,0.3,26.1,\n2,02-Jan-2003 00:00:00,-1.5,0.0,\n";
    const std::string third = "3,02-Jan-2003 13:07:08,100.0,20.0,\n";
    EXPECT_EQ(Run({"list", file}).Out, head + firstTwo + third);
    EXPECT_EQ(Run({"list", file, "--exact", "--start=1", "--count=1"}).Out,
              head + "2,02-Jan-2003 00:00:00,-1.5,-0.04,\n");
    EXPECT_EQ(Run({"list", file, "--start=2", "--count=9223372036854775807"}).Out, head + third);
    const auto document = Json({"list", file, "--start", "1", "--count", "1"});
    EXPECT_EQ(KeysOf(document), "readings messages");
    ASSERT_EQ(document["readings"].Size(), 1U);
    const auto& reading = document["readings"][0];
    EXPECT_EQ(KeysOf(reading), "result time serial gas temperature markers");
    EXPECT_EQ(reading["serial"].GetDouble(), 37623.0);
    EXPECT_EQ(reading["temperature"].GetDouble(), -0.04);
    EXPECT_TRUE(reading["markers"].Empty());

    const auto beyond = Json({"list", file, "--start", "3"}, 1);
    EXPECT_TRUE(beyond["readings"].Empty());
    EXPECT_EQ(MessagesOf(beyond),
              std::vector{"There is no reading 3: " + file + " holds 3, counted from 0"});
}

TEST_F(BraskData, WhatHoldsNoReadingsFails) {
    // the path and the reason in front of "No data was read", empty for none
    const std::pair<std::string, const char*> cases[] = {
        {At("missing.csv"), "Cannot read "},
        {At(""), "Is a directory"},
        {Write("header.csv", kHeader), ""},
        {Write("lf.csv", "GAS: CO\nJAN-01-2003 00:05:12,    0.1,  26.1\n"), ""},
        {Write("binary.csv", std::string("\xFF,:\x1B[2J,\0\x90\r\n", 12)), "\x1B[2J"}};
    for (const auto& [path, reason] : cases) {
        for (const char* command : {"info", "list", "curves"}) {
            const auto messages = MessagesOf(Json({command, path}, 1));
            ASSERT_EQ(messages.size(), *reason == '\0' ? 1U : 2U) << path;
            EXPECT_NE(messages[0].find(reason), std::string::npos) << messages[0];
            EXPECT_EQ(messages.back(), "No data was read") << path;
        }
        const Finished text = Run({"info", path});
        EXPECT_EQ(text.Out, "") << path;
        EXPECT_EQ(text.Error.find('\x1B'), std::string::npos) << path;
    }
    EXPECT_EQ(Run({"info", At("lf.csv")}).Error.rfind("lf.csv has no CR LF line ends", 0), 0U);
    EXPECT_TRUE(Json({"info", At("header.csv")}, 1)["gas_min"].IsNull());
}

TEST_F(BraskData, BadLinesAreReportedAndTheRestIsRead) {
    const std::string time = "JAN-01-2003 00:05:12";
    const std::string file =
        Write("odd.csv", DataLine(time, "abc", "26.1") + DataLine(time, "0.1", "\xE9 1e400") +
                             DataLine("JAN/02/2003 0:05:12", "0.2", "1e308"));
    const auto info = Json({"info", file, "--fahrenheit", "--date-order", "dmy"});
    EXPECT_STREQ(info["first"].GetString(), "02-Jan-2003 00:05:12");
    EXPECT_EQ(info["rejected_lines"].GetDouble(), 2);
    EXPECT_TRUE(info["temperature_max"].IsNull());  // beyond any number in °F
    EXPECT_EQ(MessagesOf(info).size(), 2U);
    const std::string text = Run({"info", file, "--date-order", "ymd"}).Error;
    EXPECT_NE(text.find("line of data\nTemperature of é 1e400 is"), std::string::npos) << text;
    EXPECT_NE(text.find("[Input as JAN/02/2003 0:05:12]"), std::string::npos) << text;
}

TEST_F(BraskData, ExpandWritesTheDataFileWholeOrNotAtAll) {
    const std::string raw = Write("raw", "junk INSTRUMENT: X\r\nAB\r\n\x82 C\r\nunfinished");
    Write("out.csv", "old");
    const auto document = Json({"expand", raw, "-o", At("out.csv")});
    EXPECT_EQ(KeysOf(document), "file lines messages");
    EXPECT_STREQ(document["file"].GetString(), At("out.csv").c_str());
    EXPECT_EQ(document["lines"].GetDouble(), 3);
    EXPECT_EQ(Read("out.csv"), "INSTRUMENT: X\r\nAB\r\nAB C\r\n");

    EXPECT_EQ(Run({"expand", raw, "-o", raw}).Out, raw + ": 3 lines\n");
    EXPECT_EQ(Read("raw"), Read("out.csv"));
    const auto failed = Json({"expand", At("missing"), "-o", At("out.csv")}, 1);
    EXPECT_TRUE(failed["file"].IsNull());
    EXPECT_EQ(MessagesOf(failed).size(), 1U);
    EXPECT_EQ(Listing(), "out.csv raw");
}

TEST_F(BraskData, CurvesAreThoseOfTheLayout) {
    const std::string file = ThreeReadings();
    const auto continuous = Json({"curves", file});
    EXPECT_EQ(KeysOf(continuous), "title title_size caption x y y1 curves messages");
    EXPECT_STREQ(continuous["title"].GetString(),
                 "VEK Talvex© K42, Instrument: TALVEX © K42,  S/N:0417");
    EXPECT_EQ(KeysOf(continuous["curves"][0]), "name axis color line style x y");
    EXPECT_EQ(continuous["curves"][0]["style"].GetDouble(), 8);

    const auto days = Json({"curves", file, "--layout=days", "--no-data-points"});
    EXPECT_STREQ(days["curves"][3]["name"].GetString(), "02-Jan-2003 Temp");
    EXPECT_EQ(days["curves"][3]["style"].GetDouble(), 0);

    // 1 January 2003 was a Wednesday
    const auto weeks = Json({"curves", file, "--layout", "weeks", "--start-week", "monday"});
    EXPECT_EQ(weeks["curves"][0]["x"][1].GetDouble(), 3.0);
}

}  // namespace
}  // namespace brask
