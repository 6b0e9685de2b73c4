#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>

#include "data/DateTime.h"

namespace brask {
namespace {

using enum LongDateOrder;

// the order of dates, a text, what comes of it
using Case = std::tuple<LongDateOrder, const char*, const char*>;

TEST(DateTime, DaysAgreeWithCountingThemOneByOne) {
    static constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::int64_t day = -109205;  // 1 January 1601, 1899-12-30 being 0
    int dayOfWeek = 2;           // a Monday
    for (int year = 1601; year <= 2400; ++year) {
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        for (int month = 1; month <= 12; ++month) {
            const int length = kLengths[month - 1] + (leap && month == 2 ? 1 : 0);
            for (int dayOfMonth = 1; dayOfMonth <= length; ++dayOfMonth) {
                const CivilDate date{year, month, dayOfMonth};
                ASSERT_EQ(DaysFromCivil(date), day);
                ASSERT_EQ(CivilFromDays(day), date);
                ASSERT_EQ(DayOfWeek(day), dayOfWeek);
                ASSERT_TRUE(IsCalendarDate(date));
                const int second = static_cast<int>((day + 109205) * 7919 % 86400);
                const CivilDateTime time{date, second / 3600, second / 60 % 60, second % 60};
                ASSERT_EQ(CivilFromSerial(SerialFromCivil(time)), time);
                ++day;
                dayOfWeek = dayOfWeek % 7 + 1;
            }
            ASSERT_FALSE(IsCalendarDate({year, month, length + 1}));
        }
    }
}

TEST(DateTime, SerialsOutsideTheCalendarBecomeTheNearerEnd) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double below : {-kInfinity, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FormatReadingTime(below), "01-Jan-0100 00:00:00");
    }
    EXPECT_EQ(FormatReadingTime(kInfinity), "31-Dec-9999 23:59:59");
    EXPECT_EQ(FormatReadingTime(37622.999995), "02-Jan-2003 00:00:00") << "to the nearest second";
}

TEST(DateTime, TextsThatAreDates) {
    const Case cases[] = {{kMonthDayYear, "JAN-01-2003 00:05:12", "01-Jan-2003 00:05:12"},
                          {kYearMonthDay, "5-mar-2004 7:09", "05-Mar-2004 07:09:00"},
                          {kMonthDayYear, "3/5/2004 13:30", "05-Mar-2004 13:30:00"},
                          {kDayMonthYear, "3/5/2004 13:30", "03-May-2004 13:30:00"},
                          {kYearMonthDay, "2004/3/5 13:30:07", "05-Mar-2004 13:30:07"},
                          {kMonthDayYear, "  3/5/2004   1:30 pm  ", "05-Mar-2004 13:30:00"},
                          {kMonthDayYear, "3/5/2004 12:00:01 AM", "05-Mar-2004 00:00:01"},
                          {kMonthDayYear, "DEC-31-9999", "31-Dec-9999 00:00:00"}};
    for (const auto& [order, text, formatted] : cases) {
        const auto parsed = ParseDateTime(text, order);
        ASSERT_TRUE(parsed) << text;
        EXPECT_EQ(FormatReadingTime(*parsed), formatted) << text;
    }
}

TEST(DateTime, TextsThatAreNone) {
    const char* const dates[] = {
        " ",           "JAN",       "FEB-29-2003", "APR-31-2004", "JAN-00-2003", "JAN-32-2003",
        "XXX-01-2003", "JAN-01-03", "13/13/2004",  "3/5/04",      "3/5/2004/6",  "3-5-2004",
        "JAN/01/2003", "2004/3/5",  "-1/5/2004",   "3/5/0099",    "1:30"};
    for (const char* date : dates) EXPECT_FALSE(ParseDateTime(date, kMonthDayYear)) << date;
    const std::string day = "JAN-01-2003";
    const char* const times[] = {" 24:00:00", " 00:60:00",  " 00:00:60", " 0:5",        " 13:00 PM",
                                 " 0:30 AM",  " 00:05:12x", "x00:05:12", " 00:05:12 XM"};
    for (const char* time : times) EXPECT_FALSE(ParseDateTime(day + time, kMonthDayYear)) << time;
    EXPECT_FALSE(ParseDateTime("", kMonthDayYear));
    EXPECT_FALSE(ParseDateTime("3/5/2004", kYearMonthDay));
    EXPECT_FALSE(ParseTimeOfDay("JAN-01-2003 1:30"));
    EXPECT_EQ(ParseTimeOfDay(" 6:00 pm "), 0.75);
}

TEST(DateTime, RewritingByDateOrder) {
    const Case cases[] = {{kMonthDayYear, "JAN/02/2003 00:05:12", "JAN/02/2003 00:05:12"},
                          {kDayMonthYear, "JAN/02/2003 00:05:12", "02/01/2003 00:05:12"},
                          {kYearMonthDay, "JAN/02/2003 00:05:12", "2003 00:05:12/01/02"},
                          {kDayMonthYear, "dEc/31/2003/7", "31/12/2003"},
                          {kDayMonthYear, "01/02/2003", "02//2003"},
                          {kDayMonthYear, "JAN/02-2003", "JAN/02-2003"}};
    for (const auto& [order, text, rewritten] : cases) {
        EXPECT_EQ(ToLocaleDateText(text, order), rewritten);
    }
}

}  // namespace
}  // namespace brask
