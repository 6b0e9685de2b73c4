// A locale that is the same on every machine: English names, a chosen date order and decimal sign.
#pragma once

#include "platform/UserLocale.h"

namespace brask {

class FixedUserLocale : public UserLocale {
  public:
    explicit FixedUserLocale(LongDateOrder order = LongDateOrder::kMonthDayYear,
                             char decimalSign = '.')
        : order_(order), decimalSign_(decimalSign) {}

    LongDateOrder DateOrder() const override { return order_; }
    char DecimalSign() const override { return decimalSign_; }
    // "2003-01-05", whatever the order.
    std::string ShortDate(const CivilDate& date) const override;
    // "13:30:00".
    std::string LongTime(const CivilDateTime& time) const override;
    std::array<std::string, 7> DayNames() const override;
    std::array<std::string, 12> MonthNames() const override;

  private:
    LongDateOrder order_;
    char decimalSign_;
};

}  // namespace brask
