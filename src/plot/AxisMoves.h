// Arithmetic of moving and zooming one axis: from the range that is shown to the one that would be.
// Nothing is checked here; Chart::ShowView refuses what cannot be shown.
#pragma once

#include "plot/Chart.h"

namespace brask {

// How far one scroll step goes, as a part of the visible span.
inline constexpr double kScrollStep = 0.1;
inline constexpr double kFastScrollStep = 0.5;

inline double SpanOf(const AxisRange& range) { return range.Maximum - range.Minimum; }
inline double MiddleOf(const AxisRange& range) { return range.Minimum + SpanOf(range) / 2; }

// Moved by a part of its span, towards greater values for positive parts.
AxisRange Shifted(const AxisRange& range, double part);
// The same span around another middle.
AxisRange CenteredOn(const AxisRange& range, double middle);
// The part of the range between two fractions of it, in any order.
AxisRange PartOf(const AxisRange& range, double from, double to);
// Every distance from `fixed`, a value of the axis, multiplied by `factor`: below 1 zooms in.
AxisRange ScaledAbout(const AxisRange& range, double fixed, double factor);
// Moved, span kept, so far that the value lies a tenth of the span within it; unchanged when the
// value is in sight already or cannot be brought there.
AxisRange Containing(const AxisRange& range, double value);
// The nearest shift of `wanted` that shows nothing beyond `limits` that `shown` does not show
// already: a view is never pushed away from the data by hand.
AxisRange HeldWithin(const AxisRange& wanted, const AxisRange& shown, const AxisRange& limits);
// Cut to `limits`, or to `shown` where that reaches further out.
AxisRange CutTo(const AxisRange& wanted, const AxisRange& shown, const AxisRange& limits);

}  // namespace brask
