#include "plot/AxisMoves.h"

#include <algorithm>
#include <cmath>

namespace brask {

AxisRange Shifted(const AxisRange& range, double part) {
    const double shift = SpanOf(range) * part;
    return {range.Minimum + shift, range.Maximum + shift};
}

AxisRange CenteredOn(const AxisRange& range, double middle) {
    const double half = SpanOf(range) / 2;
    return {middle - half, middle + half};
}

AxisRange PartOf(const AxisRange& range, double from, double to) {
    const auto at = [&](double part) { return range.Minimum + part * SpanOf(range); };
    return {at(std::min(from, to)), at(std::max(from, to))};
}

AxisRange ScaledAbout(const AxisRange& range, double fixed, double factor) {
    return {fixed + (range.Minimum - fixed) * factor, fixed + (range.Maximum - fixed) * factor};
}

AxisRange Containing(const AxisRange& range, double value) {
    constexpr double kMargin = 0.1;
    const double span = SpanOf(range);
    if (!std::isfinite(value) || span <= 0) return range;
    if (value < range.Minimum) return Shifted(range, (value - range.Minimum) / span - kMargin);
    if (value > range.Maximum) return Shifted(range, (value - range.Maximum) / span + kMargin);
    return range;
}

AxisRange HeldWithin(const AxisRange& wanted, const AxisRange& shown, const AxisRange& limits) {
    const double lowest = std::min(shown.Minimum, limits.Minimum);
    const double highest = std::max(shown.Maximum, limits.Maximum);
    double shift = 0;
    if (wanted.Minimum < lowest) shift = lowest - wanted.Minimum;
    if (wanted.Maximum > highest) shift = highest - wanted.Maximum;
    return {wanted.Minimum + shift, wanted.Maximum + shift};
}

AxisRange CutTo(const AxisRange& wanted, const AxisRange& shown, const AxisRange& limits) {
    return {std::max(wanted.Minimum, std::min(shown.Minimum, limits.Minimum)),
            std::min(wanted.Maximum, std::max(shown.Maximum, limits.Maximum))};
}

}  // namespace brask
