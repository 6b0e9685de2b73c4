// The user's conventions for dates, times and numbers.
#pragma once

#include <array>
#include <string>

#include "platform/CivilTime.h"

namespace brask {

// The order of day, month and year in a date, numbered as systems number it.
enum class LongDateOrder { kMonthDayYear = 0, kDayMonthYear = 1, kYearMonthDay = 2 };

class UserLocale {
  public:
    virtual ~UserLocale() = default;

    // How numeric dates are read and written.
    virtual LongDateOrder DateOrder() const = 0;
    // "." or ",". For what users type and see on axes; files and settings always use ".".
    virtual char DecimalSign() const = 0;
    // The date and the time of day as the system writes them, UTF-8.
    virtual std::string ShortDate(const CivilDate& date) const = 0;
    virtual std::string LongTime(const CivilDateTime& time) const = 0;
    // Sunday first, UTF-8.
    virtual std::array<std::string, 7> DayNames() const = 0;
    // January first, UTF-8.
    virtual std::array<std::string, 12> MonthNames() const = 0;
};

}  // namespace brask
