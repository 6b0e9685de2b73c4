#include "platform/simulated/FixedUserLocale.h"

#include <cstdio>

namespace brask {

std::string FixedUserLocale::ShortDate(const CivilDate& date) const {
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.Year, date.Month, date.Day);
    return text;
}

std::string FixedUserLocale::LongTime(const CivilDateTime& time) const {
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time.Hour, time.Minute, time.Second);
    return text;
}

std::array<std::string, 7> FixedUserLocale::DayNames() const {
    return {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
}

std::array<std::string, 12> FixedUserLocale::MonthNames() const {
    return {"January", "February", "March",     "April",   "May",      "June",
            "July",    "August",   "September", "October", "November", "December"};
}

}  // namespace brask
