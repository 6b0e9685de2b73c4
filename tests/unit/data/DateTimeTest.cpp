#include <gtest/gtest.h>

#include <limits>

#include "data/DateTime.h"

namespace brask {
namespace {

using enum LongDateOrder;

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
                ++day;
                dayOfWeek = dayOfWeek % 7 + 1;
            }
            ASSERT_FALSE(IsCalendarDate({year, month, length + 1}));
        }
    }
    EXPECT_EQ(DaysFromCivil({1899, 12, 30}), 0);
    EXPECT_EQ(DaysFromCivil({2000, 1, 1}), 36526);
    EXPECT_EQ(SerialFromCivil({{2000, 1, 1}, 0, 0, 0}), kEarliestDisplayDate);
    EXPECT_EQ(FormatReadingDate(kLatestDisplayDate), "12-Dec-9999");
}

TEST(DateTime, EverySecondOfADaySurvivesTheSerial) {
    for (const CivilDate date : {CivilDate{2003, 1, 5}, CivilDate{100, 1, 1},
                                 CivilDate{1899, 12, 29}, CivilDate{9999, 12, 31}}) {
        for (int second = 0; second < 86400; second += 7) {
            const CivilDateTime time{date, second / 3600, second / 60 % 60, second % 60};
            ASSERT_EQ(CivilFromSerial(SerialFromCivil(time)), time);
        }
    }
}

TEST(DateTime, SerialsOutsideTheCalendarBecomeTheNearerEnd) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(FormatReadingTime(-kInfinity), "01-Jan-0100 00:00:00");
    EXPECT_EQ(FormatReadingTime(-1e300), "01-Jan-0100 00:00:00");
    EXPECT_EQ(FormatReadingTime(kInfinity), "31-Dec-9999 23:59:59");
    EXPECT_EQ(FormatReadingTime(1e300), "31-Dec-9999 23:59:59");
    EXPECT_EQ(FormatReadingTime(std::numeric_limits<double>::quiet_NaN()), "01-Jan-0100 00:00:00");
    EXPECT_EQ(FormatReadingTime(37622.999995), "02-Jan-2003 00:00:00") << "to the nearest second";
    EXPECT_EQ(FormatReadingDate(37622.25), "01-Jan-2003");
}

TEST(DateTime, TextsThatAreDates) {
    struct Case {
        const char* Text;
        LongDateOrder Order;
        const char* Formatted;
    };
    const Case cases[] = {{"JAN-01-2003 00:05:12", kMonthDayYear, "01-Jan-2003 00:05:12"},
                          {"JAN-01-2003 00:05:12", kDayMonthYear, "01-Jan-2003 00:05:12"},
                          {"JAN-01-2003 00:05:12", kYearMonthDay, "01-Jan-2003 00:05:12"},
                          {"feb-29-2004 23:59:59", kMonthDayYear, "29-Feb-2004 23:59:59"},
                          {"05-Mar-2004", kMonthDayYear, "05-Mar-2004 00:00:00"},
                          {"5-mar-2004 7:09", kYearMonthDay, "05-Mar-2004 07:09:00"},
                          {"3/5/2004 13:30", kMonthDayYear, "05-Mar-2004 13:30:00"},
                          {"3/5/2004 13:30", kDayMonthYear, "03-May-2004 13:30:00"},
                          {"2004/3/5 13:30:07", kYearMonthDay, "05-Mar-2004 13:30:07"},
                          {"  3/5/2004   1:30 pm  ", kMonthDayYear, "05-Mar-2004 13:30:00"},
                          {"3/5/2004 12:00:01 AM", kMonthDayYear, "05-Mar-2004 00:00:01"},
                          {"3/5/2004 12:00:01PM", kMonthDayYear, "05-Mar-2004 12:00:01"},
                          {"DEC-31-9999 23:59:59", kMonthDayYear, "31-Dec-9999 23:59:59"}};
    for (const Case& test : cases) {
        const auto parsed = ParseDateTime(test.Text, test.Order);
        ASSERT_TRUE(parsed) << test.Text;
        EXPECT_EQ(FormatReadingTime(*parsed), test.Formatted) << test.Text;
    }
}

TEST(DateTime, TextsThatAreNone) {
    for (const char* text : {"",
                             " ",
                             "JAN",
                             "FEB-29-2003 00:00:00",
                             "APR-31-2004",
                             "JAN-00-2003",
                             "JAN-32-2003",
                             "XXX-01-2003",
                             "JAN-01-03",
                             "JAN-01-2003 24:00:00",
                             "JAN-01-2003 00:60:00",
                             "JAN-01-2003 00:00:60",
                             "JAN-01-2003 0:5",
                             "JAN-01-2003 13:00 PM",
                             "JAN-01-2003 0:30 AM",
                             "JAN-01-2003 00:05:12x",
                             "JAN-01-2003x00:05:12",
                             "JAN-01-2003 00:05:12 XM",
                             "13/13/2004",
                             "3/5/04",
                             "3/5/2004/6",
                             "3-5-2004",
                             "JAN/01/2003 00:05:12",
                             "2004/3/5",
                             "-1/5/2004",
                             "3/5/0099",
                             "1:30"}) {
        EXPECT_FALSE(ParseDateTime(text, kMonthDayYear)) << text;
    }
    EXPECT_FALSE(ParseDateTime("3/5/2004", kYearMonthDay));
    EXPECT_FALSE(ParseTimeOfDay("JAN-01-2003 1:30"));
    EXPECT_EQ(ParseTimeOfDay(" 6:00 pm "), 0.75);
}

TEST(DateTime, RewritingByDateOrder) {
    struct Case {
        const char* Text;
        LongDateOrder Order;
        const char* Rewritten;
    };
    const Case cases[] = {{"JAN/02/2003 00:05:12", kMonthDayYear, "JAN/02/2003 00:05:12"},
                          {"JAN/02/2003 00:05:12", kDayMonthYear, "02/01/2003 00:05:12"},
                          {"JAN/02/2003", kYearMonthDay, "2003/01/02"},
                          {"JAN/02/2003 00:05:12", kYearMonthDay, "2003 00:05:12/01/02"},
                          {"dec/31/2003/7", kDayMonthYear, "31/12/2003"},
                          {"01/02/2003", kDayMonthYear, "02//2003"},
                          {"JAN-02-2003 00:05:12", kDayMonthYear, "JAN-02-2003 00:05:12"},
                          {"JAN/02-2003", kDayMonthYear, "JAN/02-2003"}};
    for (const Case& test : cases) {
        EXPECT_EQ(ToLocaleDateText(test.Text, test.Order), test.Rewritten);
    }
    EXPECT_EQ(MonthNumber("sEp"), "09");
    for (const char* text : {"", "ja", "jann", "Mai", "01", "jan "})
        EXPECT_EQ(MonthNumber(text), "");
}

}  // namespace
}  // namespace brask
