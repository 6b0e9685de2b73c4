// Which stretch of the X axis is shown: everything, or a range of dates, of times of day or of days
// of the week, as the user types it.
#pragma once

#include <optional>
#include <string>

#include "platform/Texts.h"
#include "platform/UserLocale.h"
#include "plot/Chart.h"
#include "plot/PlotOptions.h"

namespace brask {

// By the numbers of the option buttons.
enum class PeriodOption { kAllData = 0, kDates = 1, kTimes = 2, kDays = 3 };

// The contents of the input boxes, UTF-8. Days count from the first day of the week.
struct PeriodEntry {
    std::string StartDate;
    std::string EndDate;
    std::string StartTime;
    std::string EndTime;
    int StartDay = 0;
    int EndDay = 6;
};

// What a check finds. Empty messages: nothing is wrong with the box.
struct PeriodCheck {
    bool CanSet = false;
    std::string StartMessage;
    std::string EndMessage;
};

// A moment of the kind that the boxes take, in the user's date order; nothing for other texts and
// for dates outside 1 January 2000 to 12 December 9999.
std::optional<double> ParseDisplayDate(const std::string& text, LongDateOrder order);

class DisplayPeriod {
  public:
    // The texts must outlive it.
    DisplayPeriod(LongDateOrder order, const Texts& texts) : order_(order), texts_(texts) {}

    PeriodOption Option = PeriodOption::kAllData;
    PeriodEntry Entry;

    // Each option but the first makes sense in one layout only.
    static bool Fits(PeriodOption option, GraphType layout);
    // Whether the chosen option's boxes can be applied; equal ends are not in order, but one whole
    // day of the week is.
    PeriodCheck Check() const;
    // The X range to show, in the unit of the axis; nothing when the check fails. For all data the
    // original range.
    std::optional<AxisRange> Window(const AxisRange& original) const;

    // The message about a date that the list of readings shall start with; empty when it is
    // accepted.
    std::string StartingDateMessage(const std::string& text, double lastReading) const;

  private:
    // Both ends in the axis's unit, or nothing for what cannot be read.
    std::optional<double> End(const std::string& text) const;

    LongDateOrder order_;
    const Texts& texts_;
};

}  // namespace brask
