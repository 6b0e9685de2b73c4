// A calendar date and a wall-clock time, without zone: what the instrument stamps and clocks show.
#pragma once

#include <compare>

namespace brask {

// The defaults are the day that serials count from. Nothing checks the fields: IsCalendarDate tells
// whether such a date exists.
struct CivilDate {
    int Year = 1899;
    int Month = 12;  // 1..12
    int Day = 30;    // 1..31

    auto operator<=>(const CivilDate&) const = default;
};

// Compares in the order of time, from the year down to the second.
struct CivilDateTime {
    CivilDate Date;
    // 0..23, 0..59 and 0..59; there are no leap seconds and nothing finer than a second, as in the
    // data files.
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    auto operator<=>(const CivilDateTime&) const = default;
};

}  // namespace brask
