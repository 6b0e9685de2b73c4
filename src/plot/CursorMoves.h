// Where the cursor goes: from reading to reading along a curve, and to its peaks.
#pragma once

#include <cstddef>
#include <optional>

#include "plot/Chart.h"

namespace brask {

// Where keyboard moves begin: the selected point, or else the reading nearest to the middle of the
// visible X range on the active axis's first curve that has one.
std::optional<ChartPoint> CursorStart(const Chart& chart);

// The drawable reading that many readings along, or the last one before the curve's end; the
// reading itself when there is none. Readings that are not finite are stepped over.
std::size_t SteppedPoint(const Curve& curve, std::size_t point, std::ptrdiff_t readings);

// A tenth of the readings between the ends of the X range, at least two.
std::ptrdiff_t FastCursorStep(const Curve& curve, const AxisRange& x);

// The reading with the greatest or the least Y within the X range, the earliest of equal ones;
// nothing when no drawable reading lies there. Costs a descent, not a pass.
std::optional<std::size_t> ExtremeWithin(const Curve& curve, const AxisRange& x, bool highest);

}  // namespace brask
