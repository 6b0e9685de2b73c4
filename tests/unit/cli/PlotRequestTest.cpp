#include <gtest/gtest.h>

#include <array>

#include "cli/PlotRequest.h"

namespace brask {
namespace {

ExitStatus Nothing(Shell&, const CommandLine&) { return ExitStatus::kDone; }

Result<CommandLine> Line(std::vector<std::string> options) {
    static const auto kCommands = std::to_array<CommandRow>(
        {{"plot", "FILE", TextRow("test", ""), DrawingOptions(), 1, 1, Nothing}});
    options.insert(options.begin(), {"plot", "file"});
    return CommandLine::Parse(kCommands, options, EnglishTexts());
}

TEST(PlotRequestTest, Pictures) {
    struct Case {
        std::vector<std::string> Options;
        std::string Expected;  // the size, or empty for wrong usage
    };
    const std::vector<Case> cases = {
        {{"-o", "a.png"}, "1600x900"},
        {{"-o", "A.BMP", "--size", "1x16384"}, "1x16384"},
        {{"-o", "a.png", "--size", "10000x10000"}, "10000x10000"},
        {{}, ""},
        {{"-o", "a.jpg"}, ""},
        {{"-o", "a.png", "--size", "16385x1"}, ""},
        {{"-o", "a.png", "--size", "10001x10000"}, ""},
        {{"-o", "a.png", "--size", "-5x9"}, ""},
        {{"-o", "a.png", "--size", "5x9x3"}, ""},
        {{"-o", "a.png", "--size", "99999999999x1"}, ""},
        {{"-o", "a.png", "--from", "1/1/2004"}, ""},
        {{"-o", "a.png", "--to", "1/1/2004"}, ""},
    };
    for (const Case& c : cases) {
        const auto line = Line(c.Options);
        const auto request = ReadPlotRequest(line.Value(), EnglishTexts());
        const std::string size = request.Ok() ? std::to_string(request.Value().Width) + "x" +
                                                    std::to_string(request.Value().Height)
                                              : "";
        EXPECT_EQ(size, c.Expected) << testing::PrintToString(c.Options);
    }
}

TEST(PlotRequestTest, Periods) {
    using enum GraphType;
    using enum LongDateOrder;
    struct Case {
        const char* From;
        const char* To;
        GraphType Layout;
        LongDateOrder Order;
        std::optional<AxisRange> Expected;
    };
    const Case cases[] = {
        {"03-Jan-2004", "JAN-04-2004 12:00", kContinuous, kMonthDayYear, {{37989, 37990.5}}},
        {"2/1/2004", "3/1/2004", kContinuous, kDayMonthYear, {{37988, 37989}}},
        {"1/1/2000", "12/12/9999", kContinuous, kMonthDayYear, {{36526, 2958446}}},
        {"12/31/1999", "1/1/2004", kContinuous, kMonthDayYear, {}},
        {"1/1/2004", "1/1/2004", kContinuous, kMonthDayYear, {}},
        {"1/2/2004", "1/1/2004", kContinuous, kMonthDayYear, {}},
        {"8:00", "9:00", kContinuous, kMonthDayYear, {}},
        {"8:30", "6:00 PM", kOverlapDays, kMonthDayYear, {{8.5, 18}}},
        {"8:30", "8:30", kOverlapDays, kMonthDayYear, {}},
        {"1/1/2004", "1/2/2004", kOverlapDays, kMonthDayYear, {}},
        {"8:00", "9:00", kOverlapWeeks, kMonthDayYear, {}},
    };
    for (const Case& c : cases) {
        const PlotRequest request{"a.png", 1, 1, c.From, c.To};
        const auto period = ReadPeriod(request, c.Layout, c.Order, EnglishTexts());
        EXPECT_EQ(period.Ok() ? period.Value() : std::nullopt, c.Expected)
            << c.From << " to " << c.To;
    }
    const auto none = ReadPeriod(PlotRequest(), kOverlapWeeks, kMonthDayYear, EnglishTexts());
    ASSERT_TRUE(none.Ok());
    EXPECT_FALSE(none.Value());
}

}  // namespace
}  // namespace brask
