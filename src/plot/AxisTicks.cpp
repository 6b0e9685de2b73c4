#include "plot/AxisTicks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "data/DateTime.h"

namespace brask {
namespace {

constexpr std::int64_t kDay = 86400;
// Steps that people count time in. They are multiples from serial 0 on, so a tick keeps its place
// while the view moves over it.
constexpr auto kSecondSteps = std::to_array<std::int64_t>(
    {1,    2,    5,    10,    15,    30,    60,   120,      300,      600,      900,
     1800, 3600, 7200, 10800, 21600, 43200, kDay, 2 * kDay, 7 * kDay, 14 * kDay});
constexpr auto kMonthSteps = std::to_array<std::int64_t>(
    {1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200, 2400, 6000, 12000, 60000, 120000});

// Whole seconds since 30 December 1899 that the range holds, within the years 100 to 9999; First
// lies behind Last when there are none.
struct SecondRange {
    std::int64_t First;
    std::int64_t Last;
};

SecondRange SecondsOf(const AxisRange& range) {
    static const double kFirst = static_cast<double>(DaysFromCivil({100, 1, 1}) * kDay);
    static const double kLast = static_cast<double>(DaysFromCivil({10000, 1, 1}) * kDay - 1);
    const auto [low, high] = std::minmax(range.Minimum, range.Maximum);
    // serials of whole seconds are rounded numbers: one that lies at the very end still counts
    constexpr double kSlack = 1e-4;
    if (low * kSecondsPerDay > kLast + kSlack || high * kSecondsPerDay < kFirst - kSlack) {
        return {1, 0};
    }
    return {static_cast<std::int64_t>(
                std::ceil(std::clamp(low * kSecondsPerDay - kSlack, kFirst, kLast))),
            static_cast<std::int64_t>(
                std::floor(std::clamp(high * kSecondsPerDay + kSlack, kFirst, kLast)))};
}

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// Ticks at first, first + 1, ... last steps, where step n is the moment `secondOf(n)`.
template <class Function>
std::vector<double> TicksAt(std::int64_t first, std::int64_t last, const Function& secondOf) {
    std::vector<double> ticks;
    for (std::int64_t step = first; step <= last; ++step) {
        const std::int64_t second = secondOf(step);
        const std::int64_t day = FloorDivide(second, kDay);
        // put together as the stamps of readings are, day and fraction apart: a tick at the moment
        // of a reading is then the same double and lies exactly on it
        ticks.push_back(static_cast<double>(day) +
                        static_cast<double>(second - day * kDay) / kSecondsPerDay);
    }
    return ticks;
}

// Months since January of the year 0.
std::int64_t MonthOf(std::int64_t second) {
    const CivilDate date = CivilFromDays(FloorDivide(second, kDay));
    return date.Year * 12 + date.Month - 1;
}

std::int64_t SecondOfMonth(std::int64_t month) {
    return DaysFromCivil({static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, 1}) *
           kDay;
}

// "hh:mm", with seconds where a tick stands between the minutes.
std::string ClockLabel(double serial) {
    const std::string time = FormatReadingTime(serial).substr(12);
    return time.ends_with(":00") ? time.substr(0, 5) : time;
}

}  // namespace

std::vector<double> DateTicks(const AxisRange& range, std::size_t most) {
    const auto [begin, end] = SecondsOf(range);
    if (begin > end || most == 0) return {};
    const auto limit = static_cast<std::int64_t>(most);
    for (const std::int64_t step : kSecondSteps) {
        const std::int64_t first = FloorDivide(begin + step - 1, step);
        const std::int64_t last = FloorDivide(end, step);
        if (last - first >= limit) continue;
        return TicksAt(first, last, [step](std::int64_t n) { return n * step; });
    }
    // months have no fixed length in seconds, so from here on steps are counted in months
    for (const std::int64_t step : kMonthSteps) {
        std::int64_t firstMonth = MonthOf(begin);
        if (SecondOfMonth(firstMonth) < begin) ++firstMonth;
        const std::int64_t first = FloorDivide(firstMonth + step - 1, step);
        const std::int64_t last = FloorDivide(MonthOf(end), step);
        if (last - first >= limit) continue;
        return TicksAt(first, last, [step](std::int64_t n) { return SecondOfMonth(n * step); });
    }
    return {};
}

std::vector<TickLabel> TableTicks(const XAxisLabels& table, const AxisRange& range,
                                  std::size_t most) {
    constexpr std::ptrdiff_t kFewest = 3;
    std::vector<TickLabel> inside;
    std::copy_if(table.Custom.begin(), table.Custom.end(), std::back_inserter(inside),
                 [&range](const TickLabel& label) {
                     return label.Position >= range.Minimum && label.Position <= range.Maximum;
                 });
    const auto visible = std::count_if(inside.begin(), inside.end(),
                                       [](const TickLabel& label) { return label.Visible; });
    if (visible >= kFewest || table.UnitsPerDay == 0) return inside;
    const double unit = table.UnitsPerDay;
    std::vector<TickLabel> finer;
    for (const double serial : DateTicks({range.Minimum / unit, range.Maximum / unit}, most)) {
        const double position = serial * unit;
        // the table's own texts, such as names of days, stay where they are
        const auto own = std::find_if(inside.begin(), inside.end(), [&](const TickLabel& label) {
            return std::abs(label.Position - position) < 1e-9;
        });
        const bool named = own != inside.end() && own->Visible;
        finer.push_back({position, named ? own->Text : ClockLabel(serial), true});
    }
    return finer;
}

std::string FormatDateLabel(double serial, std::string_view format, const UserLocale& locale) {
    const CivilDateTime time = CivilFromSerial(serial);
    const std::string date = FormatReadingTime(time);  // "dd-mmm-yyyy hh:mm:ss"
    std::string label;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%' || i + 1 == format.size()) {
            label += format[i];
            continue;
        }
        switch (format[++i]) {
            case 'd':
                label += date.substr(0, 2);
                break;
            case 'b':
                label += date.substr(3, 3);
                break;
            case 'Y':
                label += date.substr(7, 4);
                break;
            case 'X':
                label += locale.LongTime(time);
                break;
            case '%':
                label += '%';
                break;
            default:
                label += {'%', format[i]};
        }
    }
    return label;
}

}  // namespace brask
