#include "plot/DisplayPeriod.h"

#include "data/DateTime.h"
#include "plot/PlotTexts.h"

namespace brask {

using namespace plot_texts;

std::optional<double> ParseDisplayDate(const std::string& text, LongDateOrder order) {
    const auto serial = ParseDateTime(text, order);
    if (!serial || *serial < kEarliestDisplayDate || *serial > kLatestDisplayDate) {
        return std::nullopt;
    }
    return serial;
}

bool DisplayPeriod::Fits(PeriodOption option, GraphType layout) {
    switch (option) {
        case PeriodOption::kAllData:
            return true;
        case PeriodOption::kDates:
            return layout == GraphType::kContinuous;
        case PeriodOption::kTimes:
            return layout == GraphType::kOverlapDays;
        case PeriodOption::kDays:
            return layout == GraphType::kOverlapWeeks;
    }
    return false;
}

std::optional<double> DisplayPeriod::End(const std::string& text) const {
    if (Option == PeriodOption::kDates) return ParseDisplayDate(text, order_);
    const auto time = ParseTimeOfDay(text);
    if (!time) return std::nullopt;
    return *time * 24.0;
}

PeriodCheck DisplayPeriod::Check() const {
    if (Option == PeriodOption::kAllData) return {true, {}, {}};
    if (Option == PeriodOption::kDays) {
        if (Entry.EndDay >= Entry.StartDay) return {true, {}, {}};
        return {false, {}, texts_.Find(kDaysNotInOrder)};
    }
    const bool dates = Option == PeriodOption::kDates;
    const std::string& startText = dates ? Entry.StartDate : Entry.StartTime;
    const std::string& endText = dates ? Entry.EndDate : Entry.EndTime;
    const auto start = End(startText);
    const auto end = End(endText);
    PeriodCheck check;
    const TextRow& unreadable = dates ? kNotADate : kNotATime;
    if (!start) check.StartMessage = texts_.Fill(unreadable, {startText});
    if (!end) check.EndMessage = texts_.Fill(unreadable, {endText});
    check.CanSet = start && end && *start < *end;
    if (start && end && !check.CanSet) check.EndMessage = texts_.Find(kNotInOrder);
    return check;
}

std::optional<AxisRange> DisplayPeriod::Window(const AxisRange& original) const {
    if (!Check().CanSet) return std::nullopt;
    switch (Option) {
        case PeriodOption::kDates:
            return AxisRange{*End(Entry.StartDate), *End(Entry.EndDate)};
        case PeriodOption::kTimes:
            return AxisRange{*End(Entry.StartTime), *End(Entry.EndTime)};
        case PeriodOption::kDays:
            // the end day is shown whole
            return AxisRange{1.0 * Entry.StartDay, Entry.EndDay + 1.0};
        case PeriodOption::kAllData:
            break;
    }
    return original;
}

std::string DisplayPeriod::StartingDateMessage(const std::string& text, double lastReading) const {
    const auto date = ParseDateTime(text, order_);
    if (!date) return texts_.Fill(kNotADate, {text});
    if (*date <= lastReading) return {};
    return texts_.Fill(kAfterLastDate, {text, FormatReadingTime(lastReading)});
}

}  // namespace brask
