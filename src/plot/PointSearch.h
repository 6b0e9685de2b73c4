// Finds the reading of a curve that is nearest to a place, by going down the curve's pyramids.
// The cost is that of a few descents, whatever the length of the curve and whether or not its times
// go forward.
#pragma once

#include <cstddef>
#include <optional>

#include "plot/Chart.h"
#include "plot/PixelView.h"

namespace brask {

struct FoundPoint {
    std::size_t Point = 0;  // index within the curve
    double Distance = 0;    // pixels, or the unit of X
};

// The reading within the view that is nearest to the place in pixels; nothing when none is closer
// than `within` pixels. Where readings lie denser than pixels, one that is at most half a pixel
// farther away than the nearest counts as the nearest.
std::optional<FoundPoint> NearestInView(const Curve& curve, const PixelView& view, PixelPoint place,
                                        double within);

// The reading whose X value is nearest; of equally near ones an early one. Nothing in a curve
// without a drawable reading.
std::optional<FoundPoint> NearestInX(const Curve& curve, double x);

// The same on bare values with their pyramid.
std::optional<FoundPoint> NearestValue(std::span<const double> values, const CurvePyramid& pyramid,
                                       double value);

// The nearest point among all curves of one axis, which are drawn in that view.
std::optional<ChartPoint> NearestPointOnAxis(const Chart& chart, ChartAxis axis,
                                             const PixelView& view, PixelPoint place,
                                             double within);

}  // namespace brask
