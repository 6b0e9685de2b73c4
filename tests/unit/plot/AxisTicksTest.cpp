#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "data/DateTime.h"
#include "platform/simulated/FixedUserLocale.h"
#include "plot/AxisTicks.h"

namespace brask {
namespace {

double Serial(const char* text) {
    return ParseDateTime(text, LongDateOrder::kMonthDayYear).value();
}

TEST(AxisTicks, StandAtRoundMoments) {
    const struct {
        const char* From;
        const char* To;
        std::size_t Most;
        std::size_t Count;
        const char* First;
        const char* Last;
    } cases[] = {
        {"Mar-10-2003 08:00:00", "Mar-11-2003 08:00:00", 10, 8, "10-Mar-2003 09:00:00",
         "11-Mar-2003 06:00:00"},
        {"Jan-01-2003 00:00:00", "Jan-01-2003 00:00:04", 5, 5, "01-Jan-2003 00:00:00",
         "01-Jan-2003 00:00:04"},
        {"Mar-10-2003 08:00:00", "Mar-11-2003 08:00:00", 4, 4, "10-Mar-2003 12:00:00",
         "11-Mar-2003 06:00:00"},
        {"Feb-02-2003", "Dec-31-2003", 10, 10, "01-Mar-2003 00:00:00", "01-Dec-2003 00:00:00"},
        {"Jul-01-1898", "Jul-01-1901", 3, 3, "01-Jan-1899 00:00:00", "01-Jan-1901 00:00:00"},
        {"Jan-01-0100", "Dec-31-9999", 10, 9, "01-Jan-1000 00:00:00", "01-Jan-9000 00:00:00"},
    };
    for (const auto& one : cases) {
        const AxisRange range{Serial(one.From), Serial(one.To)};
        const auto ticks = DateTicks(range, one.Most);
        ASSERT_EQ(ticks.size(), one.Count) << one.From;
        EXPECT_EQ(FormatReadingTime(ticks.front()), one.First);
        EXPECT_EQ(FormatReadingTime(ticks.back()), one.Last);
        EXPECT_EQ(DateTicks({range.Maximum, range.Minimum}, one.Most), ticks) << "inverted";
    }
}

TEST(AxisTicks, NeverExceedTheirNumberWhateverTheRange) {
    std::mt19937 random(2);
    std::uniform_real_distribution<> exponent(-12, 249);
    for (int i = 0; i < 20000; ++i) {
        const double sign = random() % 2 == 0 ? 1 : -1;
        const double begin = random() % 2 == 0 ? 37000 + 0.001 * static_cast<double>(random() % 999)
                                               : sign * std::pow(10, exponent(random));
        const AxisRange range{begin, begin + std::pow(10, exponent(random))};
        const std::size_t most = random() % 20;
        const auto ticks = DateTicks(range, most);
        ASSERT_LE(ticks.size(), most);
        for (std::size_t tick = 0; tick < ticks.size(); ++tick) {
            ASSERT_GE(ticks[tick], range.Minimum - 1e-8);
            ASSERT_LE(ticks[tick], range.Maximum + 1e-8);
            ASSERT_TRUE(tick == 0 || ticks[tick] > ticks[tick - 1]);
        }
    }
}

TEST(AxisTicks, LabelsFollowTheFormat) {
    const FixedUserLocale locale;
    const double moment = Serial("Mar-05-2004 13:30:00");
    EXPECT_EQ(FormatDateLabel(moment, "%d-%b-%Y\n%X", locale), "05-Mar-2004\n13:30:00");
    EXPECT_EQ(FormatDateLabel(moment, "%d%% %q %", locale), "05% %q %");
}

}  // namespace
}  // namespace brask
