// What a curve looks like within a view: lines, column spans and markers in pixels, ready to paint.
// Their number depends on the width of the view, not on the length of the curve.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "plot/Chart.h"
#include "plot/PixelView.h"

namespace brask {

// One pixel wide, from Top down to Bottom.
// What a column shows of a dense curve. X is a whole pixel; Top and Bottom are kept within a few
// pixels of the view, so that painting may turn them into integers.
struct PixelSpan {
    int X = 0;
    double Top = 0;
    double Bottom = 0;
};

// Polylines behind one another in one array.
class PixelPolylines {
  public:
    // Adds a line; it continues the last polyline when it begins where that ended.
    void Add(const PixelLine& line);

    std::size_t Count() const { return begins_.size(); }
    // At least two points. Valid until the next Add.
    std::span<const PixelPoint> operator[](std::size_t index) const;
    // Of all polylines together: what painting them costs.
    std::size_t Points() const { return points_.size(); }

  private:
    std::vector<PixelPoint> points_;
    std::vector<std::size_t> begins_;
};

struct CurveShape {
    // A curve with few readings in view is its lines. A dense one is the spans that its readings
    // cover in each pixel column, and lines where it jumps over columns; the spans of a dotted one
    // stand apart, so that it needs no further dotting.
    bool Dense = false;
    PixelPolylines Lines;
    std::vector<PixelSpan> Spans;
    // Where markers (or the point of a curve of one reading) belong: at every reading in view, of a
    // dense curve at the least and the greatest of each column.
    std::vector<PixelPoint> Markers;
};

// Lines reach from reading to reading, also to and between readings outside the view.
// A curve whose times leap to and fro yields a bounded number of lines, spans and markers too. The
// view is only used during the call.
CurveShape ShapeOf(const Curve& curve, const PixelView& view);

}  // namespace brask
