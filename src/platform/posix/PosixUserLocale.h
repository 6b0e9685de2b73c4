// The locale of the environment (LC_ALL, LC_TIME, LC_NUMERIC, LANG), asked without ever switching
// the process's own locale, so that "." stays the decimal sign of every file.
#pragma once

#include "platform/UserLocale.h"

namespace brask {

class PosixUserLocale final : public UserLocale {
  public:
    // An unknown locale name falls back to "C". The empty name means what the environment says.
    explicit PosixUserLocale(const char* name = "");
    ~PosixUserLocale() override;
    PosixUserLocale(const PosixUserLocale&) = delete;
    PosixUserLocale& operator=(const PosixUserLocale&) = delete;

    LongDateOrder DateOrder() const override;
    char DecimalSign() const override;
    std::string ShortDate(const CivilDate& date) const override;
    std::string LongTime(const CivilDateTime& time) const override;
    std::array<std::string, 7> DayNames() const override;
    std::array<std::string, 12> MonthNames() const override;

  private:
    std::string Format(const char* format, const CivilDateTime& time) const;

    // A locale_t, kept opaque so that this header needs none of the system's.
    struct Handle;
    Handle* handle_;
};

// The order in which a strftime date format names day, month and year; month-day-year when it
// names them in no usual order. "%D" and "%F" are understood.
LongDateOrder DateOrderOfFormat(const std::string& format);

}  // namespace brask
