// A calendar date and a wall-clock time, without zone: what the instrument stamps and clocks show.
#pragma once

#include <compare>

namespace brask {

struct CivilDate {
    int Year = 1899;
    int Month = 12;  // 1..12
    int Day = 30;    // 1..31

    auto operator<=>(const CivilDate&) const = default;
};

struct CivilDateTime {
    CivilDate Date;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    auto operator<=>(const CivilDateTime&) const = default;
};

}  // namespace brask
