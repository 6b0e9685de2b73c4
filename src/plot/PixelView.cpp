#include "plot/PixelView.h"

#include <algorithm>
#include <cmath>

namespace brask {
namespace {

constexpr double kGreatestShown = 1e249;  // the drawing library ignores ranges beyond 1e250
// Below this share of the values' size, neighbouring pixels are the same double.
constexpr double kLeastRelativeWidth = 1e-12;
constexpr double kLeastWidth = 1e-12;
// Positions in widths of the range. No reading lies farther off, at the narrowest range that is
// drawn; a few overlong values do, and cutting a line that ends much farther off loses the pixel.
constexpr double kFarthest = 1e13;

// Where a value lies, 0 at the minimum and 1 at the maximum. Halved first: the difference of two
// large values of opposite sign overflows.
double Share(double value, const AxisRange& range) {
    const double share = (value / 2 - range.Minimum / 2) / (range.Maximum / 2 - range.Minimum / 2);
    return std::clamp(share, -kFarthest, kFarthest);
}

// Cuts the line from `from` to `to` at the two ends of one coordinate; false when it lies outside.
struct Cut {
    double Begin = 0;
    double End = 1;

    bool Apply(double from, double to, double low, double high) {
        const double delta = to - from;
        if (delta == 0) return from >= low && from <= high;
        double enter = (low - from) / delta;
        double leave = (high - from) / delta;
        if (enter > leave) std::swap(enter, leave);
        Begin = std::max(Begin, enter);
        End = std::min(End, leave);
        return Begin <= End;
    }
};

}  // namespace

AxisRange DrawableRange(const AxisRange& range, double halfWidth) {
    const auto bounded = [](double value) {
        return std::isnan(value) ? 0 : std::clamp(value, -kGreatestShown, kGreatestShown);
    };
    const auto [low, high] = std::minmax({bounded(range.Minimum), bounded(range.Maximum)});
    const double size = std::max(std::abs(low), std::abs(high));
    const double least = std::max(kLeastWidth, size * kLeastRelativeWidth);
    if (low == high) {
        const double half = std::max(halfWidth, least);
        return {low - half, high + half};
    }
    if (high - low >= least) return {low, high};
    const double middle = low + (high - low) / 2;
    // around the middle, so that zooming in as far as it goes does not drift sideways
    return {middle - least / 2, middle + least / 2};
}

PixelView::PixelView(const PixelRect& rect, const AxisRange& x, const AxisRange& y)
    : rect_(rect), x_(x), y_(y) {}

double PixelView::PixelX(double x) const {
    const double share = Share(x, x_);
    return rect_.Left + rect_.Width * (reversedX_ ? 1 - share : share);
}

double PixelView::PixelY(double y) const {
    const double share = Share(y, y_);
    return rect_.Top + rect_.Height * (reversedY_ ? share : 1 - share);
}

std::optional<PixelLine> PixelView::Clip(const PixelLine& line, double margin) const {
    Cut cut;
    if (!cut.Apply(line.From.X, line.To.X, rect_.Left - margin,
                   rect_.Left + rect_.Width + margin) ||
        !cut.Apply(line.From.Y, line.To.Y, rect_.Top - margin, rect_.Top + rect_.Height + margin)) {
        return std::nullopt;
    }
    const auto at = [&line](double share) {
        return PixelPoint{line.From.X + (line.To.X - line.From.X) * share,
                          line.From.Y + (line.To.Y - line.From.Y) * share};
    };
    // ends that were not cut are passed on as they are, bit for bit: the next line begins at the
    // same point and joins on
    return PixelLine{cut.Begin > 0 ? at(cut.Begin) : line.From,
                     cut.End < 1 ? at(cut.End) : line.To};
}

}  // namespace brask
