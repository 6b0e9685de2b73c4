#include <gtest/gtest.h>

#include <array>
#include <tuple>

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
    // the size, or empty for wrong usage
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"-o", "a.png"}, "1600x900"},
        {{"-o", "A.BMP", "--size", "1x16384"}, "1x16384"},
        {{"-o", "a.png", "--size", "10000x10000"}, "10000x10000"},
        {{}, ""},
        {{"-o", "a.jpg"}, ""},
        {{"-o", "a.png", "--size", "16385x1"}, ""},
        {{"-o", "a.png", "--size", "10001x10000"}, ""},
        {{"-o", "a.png", "--from", "1/1/2004"}, ""}};
    for (const auto& [options, expected] : cases) {
        const auto request = ReadPlotRequest(Line(options).Value(), EnglishTexts());
        std::string size;
        if (request.Ok()) {
            size = std::to_string(request.Value().Width) + "x" +
                   std::to_string(request.Value().Height);
        }
        EXPECT_EQ(size, expected) << testing::PrintToString(options);
    }
}

TEST(PlotRequestTest, Periods) {
    using enum GraphType;
    using enum LongDateOrder;
    // the layout, the order of dates, from and to, what is shown of the axis
    using Case =
        std::tuple<GraphType, LongDateOrder, const char*, const char*, std::optional<AxisRange>>;
    const Case cases[] = {
        {kContinuous, kMonthDayYear, "03-Jan-2004", "JAN-04-2004 12:00", {{37989, 37990.5}}},
        {kContinuous, kDayMonthYear, "2/1/2004", "3/1/2004", {{37988, 37989}}},
        {kContinuous, kMonthDayYear, "12/31/1999", "1/1/2004", {}},
        {kContinuous, kMonthDayYear, "1/1/2004", "1/1/2004", {}},
        {kContinuous, kMonthDayYear, "8:00", "9:00", {}},
        {kOverlapDays, kMonthDayYear, "8:30", "6:00 PM", {{8.5, 18}}},
        {kOverlapDays, kMonthDayYear, "8:30", "8:30", {}},
        {kOverlapWeeks, kMonthDayYear, "8:00", "9:00", {}}};
    for (const auto& [layout, order, from, to, expected] : cases) {
        const auto period = ReadPeriod({"a.png", 1, 1, from, to}, layout, order, EnglishTexts());
        EXPECT_EQ(period.Ok() ? period.Value() : std::nullopt, expected) << from << " to " << to;
    }
    const auto none = ReadPeriod(PlotRequest(), kOverlapWeeks, kMonthDayYear, EnglishTexts());
    EXPECT_TRUE(none.Ok() && !none.Value());
}

}  // namespace
}  // namespace brask
