#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "data/DateTime.h"
#include "platform/simulated/FixedUserLocale.h"
#include "plot/PeriodGrouping.h"

namespace brask {
namespace {

using Readings = std::vector<std::size_t>;  // their indexes

constexpr double k5March2004 = 38051;  // a Friday

std::int64_t DayOf(double time) { return DaysFromCivil(CivilFromSerial(time).Date); }

// Scans to the end for every period, and goes on by the number of readings found.
std::vector<Readings> DaysByRepeatedScans(const std::vector<double>& times,
                                          const UserLocale& locale) {
    const auto dateOf = [&](std::size_t i) {
        return locale.ShortDate(CivilFromSerial(times[i]).Date);
    };
    std::vector<Readings> periods;
    for (std::size_t next = 0; next < times.size(); next += periods.back().size()) {
        Readings period;
        for (std::size_t i = next; i < times.size(); ++i) {
            if (dateOf(i) == dateOf(next)) period.push_back(i);
        }
        periods.push_back(period);
    }
    return periods;
}

std::vector<Readings> WeeksOneByOne(const std::vector<double>& times, int startWeekOn) {
    std::vector<Readings> periods;
    std::int64_t lastDay = 0;
    for (std::size_t i = 0; i < times.size(); ++i) {
        const std::int64_t day = DayOf(times[i]);
        if (periods.empty() || day > lastDay) {
            periods.emplace_back();
            for (lastDay = day; DayOfWeek(lastDay + 1) != startWeekOn + 1; ++lastDay) continue;
        }
        periods.back().push_back(i);
    }
    return periods;
}

std::vector<Readings> Expanded(const PeriodGrouping& grouping) {
    std::vector<Readings> periods;
    for (const auto& period : grouping.Periods) {
        Readings readings;
        for (const ReadingRun& run : grouping.RunsOf(period)) {
            for (std::int32_t i = 0; i < run.Count; ++i) {
                readings.push_back(static_cast<std::size_t>(run.First + i));
            }
        }
        periods.push_back(readings);
    }
    return periods;
}

// Years of two digits: dates a century apart have one text.
struct TwoDigitYears final : FixedUserLocale {
    std::string ShortDate(const CivilDate& date) const override {
        return FixedUserLocale::ShortDate({2000 + date.Year % 100, date.Month, date.Day});
    }
};

// Whole seconds around noon and midnight of a few days, some of them a century later: in order,
// with some readings out of place, or in any order.
std::vector<double> RandomTimes(std::mt19937& random) {
    const int days = std::uniform_int_distribution<>(1, 20)(random);
    const int disorder = std::uniform_int_distribution<>(0, 2)(random);
    std::vector<double> times(std::uniform_int_distribution<std::size_t>(0, 60)(random));
    for (double& time : times) {
        const int second = std::uniform_int_distribution<>(-2, 2)(random);
        const int day = std::uniform_int_distribution<>(0, days)(random);
        time = k5March2004 + (random() % 8 == 0 ? 36525 : 0) + day + second / kSecondsPerDay +
               (random() % 2 == 0 ? 0.5 : 0);
    }
    std::sort(times.begin(), times.end());
    if (times.size() > 1 && disorder == 1) std::swap(times.front(), times[times.size() / 2]);
    if (disorder == 2) std::shuffle(times.begin(), times.end(), random);
    return times;
}

TEST(PeriodGrouping, GivesWhatRepeatedScansWouldGive) {
    std::mt19937 random(1);
    const TwoDigitYears locale;
    for (int file = 0; file < 3000; ++file) {
        const auto times = RandomTimes(random);
        const PeriodGrouping days = GroupByDay(times, locale);
        ASSERT_EQ(Expanded(days), DaysByRepeatedScans(times, locale)) << "file " << file;
        for (const int start : {0, 1}) {
            const PeriodGrouping weeks = GroupByWeek(times, start);
            ASSERT_EQ(Expanded(weeks), WeeksOneByOne(times, start)) << "file " << file;
            for (std::size_t i = 0; i < times.size(); ++i) {
                const std::int64_t day = DayOf(times[i]);
                const double hours = (times[i] - static_cast<double>(day)) * 24;
                ASSERT_NEAR((*days.X)[i], hours, 1e-3);
                ASSERT_TRUE((*days.X)[i] >= 0 && (*days.X)[i] < 24);
                ASSERT_NEAR((*weeks.X)[i], (DayOfWeek(day) + 6 - start) % 7 + hours / 24, 1e-4);
            }
        }
    }
}

}  // namespace
}  // namespace brask
