#include "data/DateTime.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "platform/AsciiText.h"

namespace brask {
namespace {

constexpr std::int64_t kUnixEpoch = 25569;  // 1 January 1970 as a serial
// Never the locale's names: stamps must read back in every country.
constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// 1..12 for a three-letter English month name, 0 for any other text.
int MonthOfName(std::string_view text) {
    const auto found = std::find_if(kMonths.begin(), kMonths.end(), [text](std::string_view name) {
        return SameIgnoringCase(name, text);
    });
    return found == kMonths.end() ? 0 : static_cast<int>(found - kMonths.begin()) + 1;
}

// Reads a text from left to right; once something does not fit, all that follows fails too.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool AtEnd() const { return position_ == text_.size(); }
    char Peek() const { return AtEnd() ? '\0' : text_[position_]; }

    bool Skip(char c) {
        if (Peek() != c) return false;
        ++position_;
        return true;
    }
    bool SkipBlanks() {
        const std::size_t before = position_;
        while (Peek() == ' ') ++position_;
        return position_ > before;
    }
    // A number of `least` to `most` digits. Digits beyond `most` stay for what comes next, which
    // then fails on them.
    std::optional<int> Number(std::size_t least, std::size_t most) {
        int number = 0;
        std::size_t digits = 0;
        while (digits < most && Peek() >= '0' && Peek() <= '9') {
            number = number * 10 + (Peek() - '0');
            ++position_;
            ++digits;
        }
        return digits < least ? std::nullopt : std::optional<int>(number);
    }
    std::optional<int> Month() {
        const int month = MonthOfName(text_.substr(position_, 3));
        if (month == 0) return std::nullopt;
        position_ += 3;
        return month;
    }
    // 'A' or 'P' for AM or PM, '\0' for neither.
    char HalfDay() {
        const std::string_view word = text_.substr(position_, 2);
        if (word.size() < 2 || LowerCase(word[1]) != 'm') return '\0';
        const char half = LowerCase(word[0]);
        if (half != 'a' && half != 'p') return '\0';
        position_ += 2;
        return half == 'a' ? 'A' : 'P';
    }

  private:
    std::string_view text_;
    std::size_t position_ = 0;
};

std::optional<CivilDate> NamedMonthDate(Scanner scan) {
    std::optional<int> month = scan.Month();
    // The instrument writes JAN-01-2003, the program itself 01-Jan-2003; both must read everywhere.
    const bool monthFirst = month.has_value();
    if (monthFirst && !scan.Skip('-')) return std::nullopt;
    const auto day = scan.Number(1, 2);
    if (!scan.Skip('-')) return std::nullopt;
    if (!monthFirst) {
        month = scan.Month();
        if (!scan.Skip('-')) return std::nullopt;
    }
    const auto year = scan.Number(4, 4);
    if (!day || !month || !year || !scan.AtEnd()) return std::nullopt;
    return CivilDate{*year, *month, *day};
}

std::optional<CivilDate> NumericDate(Scanner scan, LongDateOrder order) {
    const bool yearFirst = order == LongDateOrder::kYearMonthDay;
    const auto first = yearFirst ? scan.Number(4, 4) : scan.Number(1, 2);
    if (!scan.Skip('/')) return std::nullopt;
    const auto second = scan.Number(1, 2);
    if (!scan.Skip('/')) return std::nullopt;
    const auto third = yearFirst ? scan.Number(1, 2) : scan.Number(4, 4);
    if (!first || !second || !third || !scan.AtEnd()) return std::nullopt;
    if (yearFirst) return CivilDate{*first, *second, *third};
    if (order == LongDateOrder::kDayMonthYear) return CivilDate{*third, *second, *first};
    return CivilDate{*third, *first, *second};
}

std::string TwoDigits(int number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

}  // namespace

std::int64_t DaysFromCivil(const CivilDate& date) {
    using namespace std::chrono;
    const year_month_day civil(year(date.Year), month(static_cast<unsigned>(date.Month)),
                               day(static_cast<unsigned>(date.Day)));
    return sys_days(civil).time_since_epoch().count() + kUnixEpoch;
}

CivilDate CivilFromDays(std::int64_t days) {
    using namespace std::chrono;
    const year_month_day civil(sys_days(std::chrono::days(days - kUnixEpoch)));
    return {static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
            static_cast<int>(static_cast<unsigned>(civil.day()))};
}

bool IsCalendarDate(const CivilDate& date) {
    using namespace std::chrono;
    if (date.Year < 100 || date.Year > 9999 || date.Month < 1 || date.Day < 1) return false;
    return year_month_day(year(date.Year), month(static_cast<unsigned>(date.Month)),
                          day(static_cast<unsigned>(date.Day)))
        .ok();
}

int DayOfWeek(std::int64_t days) {
    // 30 December 1899 was a Saturday
    const std::int64_t sinceSaturday = ((days % 7) + 7) % 7;
    return sinceSaturday == 0 ? 7 : static_cast<int>(sinceSaturday);
}

double SerialFromCivil(const CivilDateTime& time) {
    const int seconds = time.Hour * 3600 + time.Minute * 60 + time.Second;
    return static_cast<double>(DaysFromCivil(time.Date)) + seconds / kSecondsPerDay;
}

CivilDateTime CivilFromSerial(double serial) {
    static const double kFirst = static_cast<double>(DaysFromCivil({100, 1, 1}));
    static const double kLast = static_cast<double>(DaysFromCivil({10000, 1, 1}));
    // written so that a NaN becomes the first date
    const double bounded = serial >= kFirst ? std::min(serial, kLast) : kFirst;
    auto seconds = static_cast<std::int64_t>(std::llround(bounded * kSecondsPerDay));
    const auto end = static_cast<std::int64_t>(kLast * kSecondsPerDay);
    // A last half second would round up into the year 10000, which has no four-digit form.
    seconds = std::min(seconds, end - 1);
    constexpr std::int64_t kDay = 86400;
    const std::int64_t ofDay = ((seconds % kDay) + kDay) % kDay;
    return {CivilFromDays((seconds - ofDay) / kDay), static_cast<int>(ofDay / 3600),
            static_cast<int>(ofDay / 60 % 60), static_cast<int>(ofDay % 60)};
}

std::string FormatReadingTime(double serial) { return FormatReadingTime(CivilFromSerial(serial)); }

std::string FormatReadingTime(const CivilDateTime& time) {
    std::string text = TwoDigits(time.Date.Day) + "-";
    text += kMonths[static_cast<std::size_t>(time.Date.Month - 1)];
    text += "-" + TwoDigits(time.Date.Year / 100) + TwoDigits(time.Date.Year % 100);
    text += " " + TwoDigits(time.Hour) + ":" + TwoDigits(time.Minute);
    text += ":" + TwoDigits(time.Second);
    return text;
}

std::string FormatReadingDate(double serial) { return FormatReadingTime(serial).substr(0, 11); }

std::string MonthNumber(std::string_view text) {
    const int month = MonthOfName(text);
    return month == 0 ? "" : TwoDigits(month);
}

std::string ToLocaleDateText(std::string_view text, LongDateOrder order) {
    // Fields beyond the third are dropped with their slashes.
    const auto slash1 = text.find('/');
    const auto slash2 = slash1 == std::string_view::npos ? slash1 : text.find('/', slash1 + 1);
    if (order == LongDateOrder::kMonthDayYear || slash2 == std::string_view::npos) {
        return std::string(text);
    }
    const std::string_view part1 = text.substr(0, slash1);
    const std::string part2(text.substr(slash1 + 1, slash2 - slash1 - 1));
    const std::string_view rest = text.substr(slash2 + 1);
    const std::string part3(rest.substr(0, rest.find('/')));
    if (order == LongDateOrder::kDayMonthYear) {
        return part2 + "/" + MonthNumber(part1) + "/" + part3;
    }
    return part3 + "/" + MonthNumber(part1) + "/" + part2;
}

std::optional<double> ParseTimeOfDay(std::string_view text) {
    Scanner scan(Trimmed(text));
    const auto hour = scan.Number(1, 2);
    if (!hour || !scan.Skip(':')) return std::nullopt;
    const auto minute = scan.Number(2, 2);
    std::optional<int> second = 0;
    if (scan.Skip(':')) second = scan.Number(2, 2);
    if (!minute || *minute > 59 || !second || *second > 59) return std::nullopt;
    scan.SkipBlanks();
    const char half = scan.HalfDay();
    if (!scan.AtEnd()) return std::nullopt;
    // With AM or PM the hours go from 12 over 1 to 11; 0 and 13 are none.
    if (half == '\0' ? *hour > 23 : *hour < 1 || *hour > 12) return std::nullopt;
    int hour24 = *hour;
    if (half == 'A') hour24 = *hour % 12;
    if (half == 'P') hour24 = *hour % 12 + 12;
    return (hour24 * 3600 + *minute * 60 + *second) / kSecondsPerDay;
}

std::optional<double> ParseDateTime(std::string_view text, LongDateOrder order) {
    text = Trimmed(text);
    const auto blank = text.find(' ');
    const std::string_view datePart = text.substr(0, blank);
    auto date = NamedMonthDate(Scanner(datePart));
    // A month in words is never ambiguous, so it is tried first and in every country.
    if (!date) date = NumericDate(Scanner(datePart), order);
    if (!date || !IsCalendarDate(*date)) return std::nullopt;
    const auto days = static_cast<double>(DaysFromCivil(*date));
    if (blank == std::string_view::npos) return days;
    const auto time = ParseTimeOfDay(text.substr(blank));
    if (!time) return std::nullopt;
    return days + *time;
}

}  // namespace brask
