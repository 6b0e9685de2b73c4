#include "plot/ViewDescription.h"

#include <algorithm>
#include <cmath>

#include "data/DateTime.h"
#include "data/NumberText.h"
#include "plot/PlotTexts.h"

namespace brask {
namespace {

// "hh:mm" of a number of minutes; the end of the day is 24:00.
std::string ClockText(long minutes) {
    const auto twoDigits = [](long value) {
        const std::string text = std::to_string(value);
        return text.size() < 2 ? "0" + text : text;
    };
    return twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60);
}

constexpr long kMinutesPerDay = 24L * 60;

std::string WeekMoment(double days, bool isEnd, int startWeekOn, const UserLocale& locale) {
    const long minutes =
        std::lround(std::clamp(days, 0.0, 7.0) * static_cast<double>(kMinutesPerDay));
    long day = minutes / kMinutesPerDay;
    long rest = minutes % kMinutesPerDay;
    // the midnight that ends a day belongs to that day when a range ends with it
    if (day == 7 || (isEnd && rest == 0 && day > 0)) {
        --day;
        rest = kMinutesPerDay;
    }
    const auto name = static_cast<std::size_t>((day + startWeekOn) % 7);
    return locale.DayNames()[name] + " " + ClockText(rest);
}

}  // namespace

std::string VisibleRangeText(const AxisRange& range, GraphType layout, int startWeekOn,
                             const UserLocale& locale) {
    const auto joined = [](const std::string& from, const std::string& to) {
        return from + " - " + to;
    };
    switch (layout) {
        case GraphType::kOverlapDays: {
            const auto minutes = [](double hours) {
                return std::lround(std::clamp(hours, 0.0, 24.0) * 60);
            };
            return joined(ClockText(minutes(range.Minimum)), ClockText(minutes(range.Maximum)));
        }
        case GraphType::kOverlapWeeks:
            return joined(WeekMoment(range.Minimum, false, startWeekOn, locale),
                          WeekMoment(range.Maximum, true, startWeekOn, locale));
        case GraphType::kContinuous:
            break;
    }
    return joined(FormatReadingTime(range.Minimum), FormatReadingTime(range.Maximum));
}

std::string SelectedReadingText(const DataSet& data, std::size_t reading,
                                const TemperatureUnit& unit, const Texts& texts) {
    return texts.Fill(
        plot_texts::kSelectedValues,
        {FormatReadingTime(data.Times()[reading]), FormatPlainNumber(data.Gas()[reading]),
         FormatPlainNumber(data.Temperatures()[reading]), unit.Label()});
}

}  // namespace brask
