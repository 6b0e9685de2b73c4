#include "platform/posix/PosixUserLocale.h"

#include <langinfo.h>

#include <clocale>
#include <ctime>
#include <string_view>

namespace brask {
namespace {

// The parts of a date that one conversion letter of strftime writes.
std::string_view PartsOf(char letter) {
    switch (letter) {
        case 'D':
            return "mdy";
        case 'F':
            return "ymd";
        case 'd':
        case 'e':
            return "d";
        case 'm':
        case 'b':
        case 'B':
        case 'h':
            return "m";
        case 'y':
        case 'Y':
            return "y";
        default:
            return "";
    }
}

}  // namespace

LongDateOrder DateOrderOfFormat(const std::string& format) {
    // flags and the E and O modifiers stand between the sign and the letter
    constexpr const char* kBetween = "-_0EO";
    std::string order;
    for (auto sign = format.find('%'); sign != std::string::npos; sign = format.find('%', sign)) {
        sign = format.find_first_not_of(kBetween, sign + 1);
        if (sign == std::string::npos) break;
        order += PartsOf(format[sign++]);
    }
    // Anything else, such as a format without a year, falls to the order that the program grew up
    // with.
    if (order == "dmy") return LongDateOrder::kDayMonthYear;
    if (order == "ymd") return LongDateOrder::kYearMonthDay;
    return LongDateOrder::kMonthDayYear;
}

PosixUserLocale::PosixUserLocale(const char* name) {
    // only what is asked for: loading all categories costs more than reading a small data file
    locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    for (const int category : {LC_TIME_MASK, LC_NUMERIC_MASK}) {
        // one category that the system does not have must not cost the other
        if (const locale_t with = newlocale(category, name, locale); with != nullptr) locale = with;
    }
    handle_ = reinterpret_cast<Handle*>(locale);
}

PosixUserLocale::~PosixUserLocale() { freelocale(reinterpret_cast<locale_t>(handle_)); }

LongDateOrder PosixUserLocale::DateOrder() const {
    return DateOrderOfFormat(nl_langinfo_l(D_FMT, reinterpret_cast<locale_t>(handle_)));
}

char PosixUserLocale::DecimalSign() const {
    const char* sign = nl_langinfo_l(RADIXCHAR, reinterpret_cast<locale_t>(handle_));
    // a few locales have a sign of several bytes; there "." is what every keyboard has
    return sign[0] == ',' ? ',' : '.';
}

std::string PosixUserLocale::Format(const char* format, const CivilDateTime& time) const {
    std::tm fields{};
    fields.tm_year = time.Date.Year - 1900;
    fields.tm_mon = time.Date.Month - 1;
    fields.tm_mday = time.Date.Day;
    fields.tm_hour = time.Hour;
    fields.tm_min = time.Minute;
    fields.tm_sec = time.Second;
    // some countries write the day of the week, too: this fills it in
    static_cast<void>(timegm(&fields));
    char text[256];
    // %x and %X give what the locale itself would write, 12-hour clocks included
    const auto length =
        strftime_l(text, sizeof text, format, &fields, reinterpret_cast<locale_t>(handle_));
    return {text, length};
}

std::string PosixUserLocale::ShortDate(const CivilDate& date) const {
    return Format("%x", {date, 0, 0, 0});
}

std::string PosixUserLocale::LongTime(const CivilDateTime& time) const {
    return Format("%X", time);
}

std::array<std::string, 7> PosixUserLocale::DayNames() const {
    std::array<std::string, 7> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] =
            nl_langinfo_l(DAY_1 + static_cast<nl_item>(i), reinterpret_cast<locale_t>(handle_));
    }
    return names;
}

std::array<std::string, 12> PosixUserLocale::MonthNames() const {
    std::array<std::string, 12> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] =
            nl_langinfo_l(MON_1 + static_cast<nl_item>(i), reinterpret_cast<locale_t>(handle_));
    }
    return names;
}

}  // namespace brask
