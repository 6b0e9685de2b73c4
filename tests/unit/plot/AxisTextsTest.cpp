// What is typed for a stretch of the axes, how the stretch in view is put in words and where its
// ticks stand.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>

#include "data/DateTime.h"
#include "data/NumberText.h"
#include "platform/simulated/FixedUserLocale.h"
#include "plot/AxisTicks.h"
#include "plot/DisplayPeriod.h"
#include "plot/ScaleEntry.h"
#include "plot/ViewDescription.h"

namespace brask {
namespace {

using enum PeriodOption;

const EnglishTexts kTexts;
constexpr auto kDayFirst = LongDateOrder::kDayMonthYear;

TEST(DisplayPeriod, BoxesGiveAWindowOrSayWhatIsWrong) {
    constexpr const char* kNoOrder = "|The end must be later than the start";
    // the window, or both messages
    const std::tuple<PeriodOption, const char*, const char*, const char*> cases[] = {
        {kDates, "05-Mar-2004", "06-Mar-2004 12:00", "38051 to 38052.5"},
        {kDates, "5/3/2004", "04-Apr-2004", "38051 to 38081"},
        {kDates, "01-Jan-2000", "12-Dec-9999", "36526 to 2958446"},
        {kDates, "31-Dec-1999", "", "31-Dec-1999 is not a valid date| is not a valid date"},
        {kDates, "01-Jan-2004", "13-Dec-9999", "|13-Dec-9999 is not a valid date"},
        {kDates, "06-Mar-2004", "05-Mar-2004", kNoOrder},
        {kDates, "06-Mar-2004", "06-Mar-2004", kNoOrder},
        {kTimes, "00:00", "23:59", "0 to 23.9833333333333"},
        {kTimes, "08:30", "1:30 PM", "8.5 to 13.5"},
        {kTimes, "25:00", "noon", "25:00 is not a valid time|noon is not a valid time"},
        {kTimes, "08:00", "08:00", kNoOrder},
        {kDays, "2", "2", "2 to 3"},  // a day is shown whole
        {kDays, "2", "1", "|The last day must not lie before the first day"},
        {kAllData, "", "", "1 to 9"},
    };
    for (const auto& [option, start, end, wanted] : cases) {
        DisplayPeriod period(kDayFirst, kTexts);
        period.Option = option;
        PeriodEntry& entry = period.Entry;
        (option == kTimes ? entry.StartTime : entry.StartDate) = start;
        (option == kTimes ? entry.EndTime : entry.EndDate) = end;
        entry.StartDay = std::atoi(start);
        entry.EndDay = std::atoi(end);
        const PeriodCheck check = period.Check();
        std::string result = check.StartMessage + "|" + check.EndMessage;
        if (const auto window = period.Window({1, 9})) {
            EXPECT_TRUE(check.CanSet && result == "|") << start;
            result = FormatPlainNumber(window->Minimum) + " to ";
            result += FormatPlainNumber(window->Maximum);
        }
        EXPECT_EQ(result, wanted);
    }
}

TEST(DisplayPeriod, AStartingDateLiesNotAfterTheLastReading) {
    const std::pair<const char*, const char*> cases[] = {
        {"01-Jan-1990", ""},
        {"5/3/2004 12:00:00", ""},
        {"5 March", "5 March is not a valid date"},
        {"06-Mar-2004",
         "Entered Date of 06-Mar-2004\r\nis after last date of 05-Mar-2004 12:00:00"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_EQ(DisplayPeriod(kDayFirst, kTexts).StartingDateMessage(text, 38051.5), message);
    }
}

constexpr ViewRecord kShown{{38051, 38052}, {-0.1, 10}, {5000, 5}};

TEST(ScaleEntry, CheckedRowsAreReadAndOthersKeepWhatIsShown) {
    using Row = ScaleRow;
    const ViewRecord old{{32874, 32875.5}, kShown.Y, kShown.Y1};
    const Row off{false, "x", "y"};
    const std::tuple<ScaleEntry, ViewRecord, std::string> cases[] = {
        {{off, off, off}, kShown, ""},
        {{off, {true, "-0,5", "1.5e3"}, off}, {kShown.X, {-0.5, 1500}, kShown.Y1}, ""},
        {{off, off, {true, "0", "40"}}, {kShown.X, kShown.Y, {0, 40}}, ""},
        // before any display period: the axis of an old file
        {{{true, "01-Jan-1990", "2/1/1990 12:00"}, off, off}, old, ""},
        {{{true, "1", "2"}, {true, "x", "1"}, off}, {}, "1 is not a valid date"},
        {{off, {true, "1", "inf"}, off}, {}, "inf is not a number"},
    };
    const FixedUserLocale locale(LongDateOrder::kDayMonthYear, ',');
    for (const auto& [entry, view, message] : cases) {
        const ScaleReading read =
            ReadScaleEntry(entry, kShown, locale, locale.DateOrder(), EnglishTexts());
        EXPECT_EQ(read.View.has_value(), message.empty());
        EXPECT_EQ(read.View.value_or(ViewRecord()), view);
        EXPECT_EQ(read.Message, message);
    }
    EXPECT_EQ(ScaleNumberText(-79.1600000001, locale), "-79,16");
}

TEST(ViewDescription, SaysTheVisibleRangeInTheLayoutsOwnTerms) {
    using enum GraphType;
    const std::tuple<AxisRange, GraphType, int, const char*> cases[] = {
        {{38051, 38052.25}, kContinuous, 0, "05-Mar-2004 00:00:00 - 06-Mar-2004 06:00:00"},
        {{8.5, 23.99}, kOverlapDays, 0, "08:30 - 23:59"},
        {{-3, 30}, kOverlapDays, 0, "00:00 - 24:00"},
        {{0, 7}, kOverlapWeeks, 1, "Monday 00:00 - Sunday 24:00"},
        {{1.5, 2.25}, kOverlapWeeks, 0, "Monday 12:00 - Tuesday 06:00"},
        {{1, 2}, kOverlapWeeks, 1, "Tuesday 00:00 - Tuesday 24:00"},
        {{6.99999, 9}, kOverlapWeeks, 0, "Saturday 24:00 - Saturday 24:00"},
    };
    for (const auto& [range, layout, startWeekOn, text] : cases) {
        EXPECT_EQ(VisibleRangeText(range, layout, startWeekOn, FixedUserLocale()), text);
    }
}

double Serial(const char* text) {
    return ParseDateTime(text, LongDateOrder::kMonthDayYear).value();
}

TEST(AxisTicks, StandAtRoundMoments) {
    // the range, the most ticks, how many there are, the first and the last
    using Case =
        std::tuple<const char*, const char*, std::size_t, std::size_t, const char*, const char*>;
    const Case cases[] = {
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
    for (const auto& [from, to, most, count, first, last] : cases) {
        const AxisRange range{Serial(from), Serial(to)};
        const auto ticks = DateTicks(range, most);
        ASSERT_EQ(ticks.size(), count) << from;
        EXPECT_EQ(FormatReadingTime(ticks.front()), first);
        EXPECT_EQ(FormatReadingTime(ticks.back()), last);
        EXPECT_EQ(DateTicks({range.Maximum, range.Minimum}, most), ticks) << "inverted";
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
