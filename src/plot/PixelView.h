// From values to pixels: how a rectangle of the screen shows a range of X and a range of Y.
#pragma once

#include <optional>

#include "plot/Chart.h"

namespace brask {

// Pixels from the top left corner, Y downwards.
struct PixelPoint {
    double X = 0;
    double Y = 0;
};

struct PixelLine {
    PixelPoint From;
    PixelPoint To;
};

// The range that is drawn for one that an axis keeps: in order, finite, wide enough for double
// precision, at most 1e249 from 0. Equal ends are moved apart by `halfWidth` each.
AxisRange DrawableRange(const AxisRange& range, double halfWidth);

// Half widths for equal ends: 30 seconds where the axis shows dates.
inline constexpr double kDateHalfWidth = 30.0 / 86400.0;
inline constexpr double kNumberHalfWidth = 0.5;

// The inside of the axes, in the widget's pixels.
struct PixelRect {
    double Left = 0;
    double Top = 0;
    double Width = 1;
    double Height = 1;
};

// Ranges must be drawable ones. A reversed view has the greater values at the left or at the
// bottom: what an axis with its minimum above its maximum asks for.
class PixelView {
  public:
    // Keeps copies of all three.
    PixelView(const PixelRect& rect, const AxisRange& x, const AxisRange& y);

    // Turn an axis round; curves then run the other way, and nothing else changes.
    void ReverseX() { reversedX_ = true; }
    void ReverseY() { reversedY_ = true; }

    // Positions are bounded, so that nothing that is done with them overflows.
    // Fractions of a pixel are kept: rounding is up to what is painted.
    double PixelX(double x) const;
    double PixelY(double y) const;
    // As it was given, without any margin.
    const PixelRect& Rect() const { return rect_; }
    // The part of a line that lies within the rectangle and `margin` pixels around it; nothing when
    // it passes by.
    std::optional<PixelLine> Clip(const PixelLine& line, double margin) const;

  private:
    PixelRect rect_;
    AxisRange x_;
    AxisRange y_;
    bool reversedX_ = false;
    bool reversedY_ = false;
};

}  // namespace brask
