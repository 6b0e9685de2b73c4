#include "platform/windows/WindowsUserLocale.h"

#include <windows.h>

#include <array>
#include <cstdio>

#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

SYSTEMTIME SystemTimeOf(const CivilDateTime& time) {
    SYSTEMTIME fields{};
    fields.wYear = static_cast<WORD>(time.Date.Year);
    fields.wMonth = static_cast<WORD>(time.Date.Month);
    fields.wDay = static_cast<WORD>(time.Date.Day);
    fields.wHour = static_cast<WORD>(time.Hour);
    fields.wMinute = static_cast<WORD>(time.Minute);
    fields.wSecond = static_cast<WORD>(time.Second);
    return fields;
}

// For what the system refuses to write: its calendar begins in 1601.
template <class... Fields>
std::string PlainText(const char* format, Fields... fields) {
    char text[64] = "";
    std::snprintf(text, sizeof text, format, fields...);
    return text;
}

}  // namespace

WindowsUserLocale::WindowsUserLocale(const std::string& name) : name_(windows::ToWide(name)) {
    if (!name_.empty() && IsValidLocaleName(name_.c_str()) == 0) name_ = L"en-US";
}

std::string WindowsUserLocale::Item(unsigned long item) const {
    wchar_t text[128] = L"";
    return GetLocaleInfoEx(Name(), item, text, 128) > 0 ? windows::ToUtf8(text) : "";
}

LongDateOrder WindowsUserLocale::DateOrder() const {
    const std::string order = Item(LOCALE_ILDATE);
    if (order == "1") return LongDateOrder::kDayMonthYear;
    if (order == "2") return LongDateOrder::kYearMonthDay;
    return LongDateOrder::kMonthDayYear;
}

// Users may set any text as their sign; then "." is what every keyboard has.
char WindowsUserLocale::DecimalSign() const { return Item(LOCALE_SDECIMAL) == "," ? ',' : '.'; }

std::string WindowsUserLocale::ShortDate(const CivilDate& date) const {
    const SYSTEMTIME fields = SystemTimeOf({date, 0, 0, 0});
    wchar_t text[128] = L"";
    if (GetDateFormatEx(Name(), DATE_SHORTDATE, &fields, nullptr, text, 128, nullptr) > 0) {
        return windows::ToUtf8(text);
    }
    // readings of one day are told by equal texts, so every date needs one
    return PlainText("%04d-%02d-%02d", date.Year, date.Month, date.Day);
}

std::string WindowsUserLocale::LongTime(const CivilDateTime& time) const {
    // the date does not show, but must be one that the system knows
    const SYSTEMTIME fields = SystemTimeOf({{2000, 1, 1}, time.Hour, time.Minute, time.Second});
    wchar_t text[128] = L"";
    if (GetTimeFormatEx(Name(), 0, &fields, nullptr, text, 128) > 0) return windows::ToUtf8(text);
    return PlainText("%02d:%02d:%02d", time.Hour, time.Minute, time.Second);
}

std::array<std::string, 7> WindowsUserLocale::DayNames() const {
    std::array<std::string, 7> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        // the system counts them from Monday
        names[i] = Item(LOCALE_SDAYNAME1 + static_cast<LCTYPE>((i + 6) % 7));
    }
    return names;
}

std::array<std::string, 12> WindowsUserLocale::MonthNames() const {
    std::array<std::string, 12> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = Item(LOCALE_SMONTHNAME1 + static_cast<LCTYPE>(i));
    }
    return names;
}

}  // namespace brask
