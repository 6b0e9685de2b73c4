#include "plot/ReadingPlaces.h"

#include <algorithm>

#include "plot/PointSearch.h"

namespace brask {

ReadingPlaces::ReadingPlaces(std::span<const double> times,
                             std::shared_ptr<const CurvePyramid> pyramid)
    : times_(times),
      pyramid_(std::move(pyramid)),
      periods_{{0, 1}},
      runs_{{0, static_cast<std::int32_t>(times.size())}},
      starts_{0} {}

ReadingPlaces::ReadingPlaces(std::span<const double> times, const PeriodGrouping& grouping)
    : times_(times),
      pyramid_(std::make_shared<const CurvePyramid>(times)),
      periods_(grouping.Periods),
      runs_(grouping.Runs) {
    starts_.reserve(runs_.size());
    for (const PeriodGrouping::Period& period : periods_) {
        std::size_t start = 0;
        for (const ReadingRun& run : RunsOf(period)) {
            starts_.push_back(start);
            start += static_cast<std::size_t>(run.Count);
        }
    }
}

std::optional<std::size_t> ReadingPlaces::ReadingOf(ChartPoint point) const {
    if (point.Curve / 2 >= periods_.size()) return std::nullopt;
    const PeriodGrouping::Period& period = periods_[point.Curve / 2];
    const auto starts = std::span(starts_).subspan(period.FirstRun, period.RunCount);
    const auto after = std::upper_bound(starts.begin(), starts.end(), point.Point);
    const auto index = static_cast<std::size_t>(after - starts.begin()) - 1;
    const ReadingRun& run = RunsOf(period)[index];
    const std::size_t within = point.Point - starts[index];
    if (within >= static_cast<std::size_t>(run.Count)) return std::nullopt;
    return static_cast<std::size_t>(run.First) + within;
}

std::optional<ChartPoint> ReadingPlaces::PlaceOf(std::size_t reading, ChartAxis axis) const {
    for (std::size_t i = 0; i < periods_.size(); ++i) {
        const auto runs = RunsOf(periods_[i]);
        // the runs of a period follow one another in the data set
        const auto after = std::upper_bound(runs.begin(), runs.end(), reading,
                                            [](std::size_t wanted, const ReadingRun& run) {
                                                return wanted < static_cast<std::size_t>(run.First);
                                            });
        if (after == runs.begin()) continue;
        const auto index = static_cast<std::size_t>(after - runs.begin()) - 1;
        const std::size_t within = reading - static_cast<std::size_t>(runs[index].First);
        if (within >= static_cast<std::size_t>(runs[index].Count)) continue;
        return ChartPoint{2 * i + (axis == ChartAxis::kLeft ? 0 : 1),
                          starts_[periods_[i].FirstRun + index] + within};
    }
    return std::nullopt;
}

std::optional<std::size_t> ReadingPlaces::NearestReading(double serial) const {
    if (!pyramid_) return std::nullopt;
    const ValueRange whole = pyramid_->Whole();
    if (!(serial >= whole.Minimum && serial <= whole.Maximum)) return std::nullopt;
    const auto found = NearestValue(times_, *pyramid_, serial);
    if (!found) return std::nullopt;
    return found->Point;
}

}  // namespace brask
