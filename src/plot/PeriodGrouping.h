// Divides the readings into days or weeks for the overlapping layouts, in one pass.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "platform/UserLocale.h"

namespace brask {

// Readings that follow one another in the data set.
struct ReadingRun {
    std::int32_t First = 0;
    std::int32_t Count = 0;
    bool operator==(const ReadingRun&) const = default;
};

// The periods in the order in which they are drawn. Periods are runs of readings; nearly always
// one run each.
// A grouping of an empty data set has no periods, and X is empty but never null.
struct PeriodGrouping {
    struct Period {
        std::size_t FirstRun = 0;  // in Runs
        std::size_t RunCount = 0;  // at least 1
    };

    std::vector<Period> Periods;
    std::vector<ReadingRun> Runs;
    // X position of every reading, as long as the data set: hours from midnight in days, days from
    // the first day of its own week in weeks.
    std::shared_ptr<const std::vector<double>> X;

    // In the order of the file. Valid while the grouping lives.
    std::span<const ReadingRun> RunsOf(const Period& period) const {
        return std::span(Runs).subspan(period.FirstRun, period.RunCount);
    }
};

// One period per day, a day being the readings of one short date. A period takes every reading of
// its date from its first reading to the end of the data, and the next period starts as many
// readings further on as it took: when a date comes in several runs, readings may so be passed
// over, and others be taken twice. Linear in the number of readings on any file.
PeriodGrouping GroupByDay(std::span<const double> times, const UserLocale& locale);

// One period per week. A week begins on Sunday (startWeekOn 0) or Monday (1) and ends in front of
// the first reading that lies beyond the week of its first reading; readings of earlier weeks in
// between stay in it.
PeriodGrouping GroupByWeek(std::span<const double> times, int startWeekOn);

}  // namespace brask
