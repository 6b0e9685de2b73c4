#include "plot/ReadingPlaces.h"

#include "plot/PointSearch.h"

namespace brask {

ReadingPlaces::ReadingPlaces(std::span<const double> times,
                             std::shared_ptr<const CurvePyramid> pyramid)
    : times_(times),
      pyramid_(std::move(pyramid)),
      periods_{{0, 1}},
      runs_{{0, static_cast<std::int32_t>(times.size())}} {}

ReadingPlaces::ReadingPlaces(std::span<const double> times, const PeriodGrouping& grouping)
    : times_(times),
      pyramid_(std::make_shared<const CurvePyramid>(times)),
      periods_(grouping.Periods),
      runs_(grouping.Runs) {}

std::optional<std::size_t> ReadingPlaces::ReadingOf(ChartPoint point) const {
    const std::size_t period = point.Curve / 2;
    if (period >= periods_.size()) return std::nullopt;
    std::size_t left = point.Point;
    for (std::size_t i = 0; i < periods_[period].RunCount; ++i) {
        const ReadingRun& run = runs_[periods_[period].FirstRun + i];
        const auto count = static_cast<std::size_t>(run.Count);
        if (left < count) return static_cast<std::size_t>(run.First) + left;
        left -= count;
    }
    return std::nullopt;
}

std::optional<ChartPoint> ReadingPlaces::PlaceOf(std::size_t reading, ChartAxis axis) const {
    for (std::size_t period = 0; period < periods_.size(); ++period) {
        std::size_t before = 0;
        for (std::size_t i = 0; i < periods_[period].RunCount; ++i) {
            const ReadingRun& run = runs_[periods_[period].FirstRun + i];
            const auto first = static_cast<std::size_t>(run.First);
            const auto count = static_cast<std::size_t>(run.Count);
            if (reading >= first && reading < first + count) {
                return ChartPoint{2 * period + (axis == ChartAxis::kLeft ? 0 : 1),
                                  before + reading - first};
            }
            before += count;
        }
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
