// Dates and times of readings. A time stamp is a "serial": whole days since 30 December 1899 with
// the time of day as the fraction, wall time of the instrument without zone, so that no stamp is
// ever shifted or lost at a change to daylight-saving time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/CivilTime.h"
#include "platform/UserLocale.h"

namespace brask {

inline constexpr double kSecondsPerDay = 86400.0;
// The bounds within which a period of the plot may be chosen: 1 January 2000, 12 December 9999.
inline constexpr double kEarliestDisplayDate = 36526.0;
inline constexpr double kLatestDisplayDate = 2958446.0;

// Days since 30 December 1899 of a calendar date (proleptic Gregorian calendar). Both directions
// are exact for every existing date, also before that day (negative then).
std::int64_t DaysFromCivil(const CivilDate& date);
CivilDate CivilFromDays(std::int64_t days);
// Whether the date exists, in the years 100 to 9999. 29 February counts only in leap years.
bool IsCalendarDate(const CivilDate& date);
// 1 for Sunday to 7 for Saturday.
int DayOfWeek(std::int64_t days);

// Exact to far below a second: a double holds today's serials to about a microsecond.
double SerialFromCivil(const CivilDateTime& time);
// To the nearest second; what lies outside the years 100 to 9999 becomes the nearer end.
CivilDateTime CivilFromSerial(double serial);

// "dd-mmm-yyyy hh:mm:ss" with English month names: "01-Jan-2003 00:05:12".
std::string FormatReadingTime(double serial);
std::string FormatReadingTime(const CivilDateTime& time);
// "dd-mmm-yyyy". The date part of the above: "01-Jan-2003".
std::string FormatReadingDate(double serial);

// "jan" .. "dec" in any letter case to "01" .. "12"; anything else to an empty string.
std::string MonthNumber(std::string_view text);

// Rewrites a data file's time field for the date order: where day or year come first, the text is
// split at "/" and put together as p2/month/p3 or p3/month/p2, the month p1 as a number. A field
// without two "/" stays as it is, so that the instrument's own form opens in every country.
std::string ToLocaleDateText(std::string_view text, LongDateOrder order);

// Reads a date with an optional time of day: MMM-dd-yyyy, dd-MMM-yyyy (English months, any letter
// case) or numeric with "/" in the given order; four-digit years; h:mm or h:mm:ss, 24-hour or with
// AM or PM. Blanks around are ignored. Nothing for any other text or a date that does not exist.
std::optional<double> ParseDateTime(std::string_view text, LongDateOrder order);
// Reads a time of day alone, in the forms above, as a fraction of a day. "13:30" is 0.5625. Nothing
// for any other text.
std::optional<double> ParseTimeOfDay(std::string_view text);

}  // namespace brask
