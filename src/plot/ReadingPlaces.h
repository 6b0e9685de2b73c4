// Which reading of the data set a curve's point is, and the other way round, in every layout; and
// which reading is nearest to a moment.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>

#include "plot/Chart.h"
#include "plot/PeriodGrouping.h"

namespace brask {

// Periods are pairs of curves: 2 i is the gas and 2 i + 1 the temperature of period i.
class ReadingPlaces {
  public:
    // No readings.
    ReadingPlaces() = default;
    // One period of all readings. The times stay the owner's and must outlive the object.
    ReadingPlaces(std::span<const double> times, std::shared_ptr<const CurvePyramid> pyramid);
    // The periods as they were grouped; makes its own pyramid of the times, in one pass.
    ReadingPlaces(std::span<const double> times, const PeriodGrouping& grouping);

    // Index of the reading in the data set; nothing for a curve that shows no readings.
    std::optional<std::size_t> ReadingOf(ChartPoint point) const;
    // The point that shows a reading on this axis; nothing for a reading that no period took.
    std::optional<ChartPoint> PlaceOf(std::size_t reading, ChartAxis axis) const;
    // The reading whose time stamp is nearest; nothing when the moment lies outside the data.
    // Logarithmic, also where times go back.
    std::optional<std::size_t> NearestReading(double serial) const;

  private:
    std::span<const double> times_;
    std::shared_ptr<const CurvePyramid> pyramid_;
    std::span<const ReadingRun> RunsOf(const PeriodGrouping::Period& period) const {
        return std::span(runs_).subspan(period.FirstRun, period.RunCount);
    }

    // Without the positions, which are the curves'.
    std::vector<PeriodGrouping::Period> periods_;
    std::vector<ReadingRun> runs_;
    // Where each run begins within its curve: a file of two days in turns has as many runs as
    // readings.
    std::vector<std::size_t> starts_;
};

}  // namespace brask
