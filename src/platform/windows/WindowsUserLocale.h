// The conventions that the user chose in the system's regional settings.
#pragma once

#include "platform/UserLocale.h"

namespace brask {

class WindowsUserLocale final : public UserLocale {
  public:
    // The name of a locale such as "de-DE"; empty for the user's own settings. An unknown name
    // falls back to "en-US".
    explicit WindowsUserLocale(const std::string& name = "");

    LongDateOrder DateOrder() const override;
    char DecimalSign() const override;
    std::string ShortDate(const CivilDate& date) const override;
    std::string LongTime(const CivilDateTime& time) const override;
    std::array<std::string, 7> DayNames() const override;
    std::array<std::string, 12> MonthNames() const override;

  private:
    std::string Item(unsigned long item) const;
    // null for the user's own
    const wchar_t* Name() const { return name_.empty() ? nullptr : name_.c_str(); }

    std::wstring name_;
};

}  // namespace brask
