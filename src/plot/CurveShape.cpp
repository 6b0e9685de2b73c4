#include "plot/CurveShape.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "plot/ColumnReduction.h"

namespace brask {
namespace {

// A curve with more readings per pixel column in view is dense.
constexpr std::size_t kSparsePerColumn = 2;
// Dots of a dense dotted curve.
constexpr double kDotDistance = 3;
// Lines may leave the view this far before they are cut: beyond any pen.
constexpr double kMargin = 16;
// A curve that leaps to and fro through time has filled its view by then.
constexpr std::size_t kMostSpans = 200000;

class ShapeBuilder {
  public:
    ShapeBuilder(const Curve& curve, const PixelView& view) : curve_(curve), view_(view) {
        SetColumns(1);
    }

    CurveShape Build() {
        // the question is asked in columns of one pixel, before dots make them wider: line style
        // must not decide whether a curve is dense
        shape_.Dense = IsDense();
        if (shape_.Dense && curve_.Line == LineStyle::kDotted) SetColumns(kDotDistance);
        ForEachColumnRun(curve_, grid_, [this](const ColumnRun& run) {
            shape_.Dense ? AddDense(run) : AddSparse(run);
            return true;
        });
        AddFilled();
        return std::move(shape_);
    }

  private:
    void SetColumns(double width) {
        grid_.ColumnWidth = width;
        grid_.Count = std::max(1, static_cast<int>(std::ceil(view_.Rect().Width / width)));
    }

    bool IsDense() const {
        std::size_t inView = 0;
        const std::size_t most = kSparsePerColumn * static_cast<std::size_t>(grid_.Count);
        ForEachColumnRun(curve_, grid_, [&](const ColumnRun& run) {
            if (grid_.Inside(run.Column)) inView += run.Readings();
            // enough is known: a dense curve is not counted to its end
            return inView <= most;
        });
        return inView > most;
    }

    PixelPoint PointOf(std::size_t reading) const {
        return {view_.PixelX(curve_.X[reading]), view_.PixelY(curve_.Y[reading])};
    }

    void AddSparse(const ColumnRun& run) {
        // readings on one side of the view cannot draw a line through it: only where the curve
        // leaves and where it comes back matters
        if (!grid_.Inside(run.Column)) {
            AddPoint(PointOf(run.First), false);
            if (run.Last != run.First) AddPoint(PointOf(run.Last), false);
            return;
        }
        for (std::size_t i = run.First; i <= run.Last; ++i) {
            if (std::isfinite(curve_.X[i]) && std::isfinite(curve_.Y[i])) {
                AddPoint(PointOf(i), true);
            }
        }
    }

    void AddPoint(const PixelPoint& point, bool inView) {
        if (inView) AddMarker(point);
        if (last_) AddLine({*last_, point});
        last_ = point;
    }

    void AddDense(const ColumnRun& run) {
        const bool touches = last_ && std::abs(run.Column - lastColumn_) == 1 &&
                             grid_.Inside(run.Column) && grid_.Inside(lastColumn_);
        // Neighbouring columns are joined by drawing the span longer. A line between them would be
        // one more stroke of the pen per pixel, and strokes are what costs time.
        if (last_ && !touches) AddLine({*last_, PointOf(run.First)});
        if (grid_.Inside(run.Column)) {
            const auto [top, bottom] =
                std::minmax({view_.PixelY(run.Y.Minimum), view_.PixelY(run.Y.Maximum)});
            AddColumnMarkers(run.Column, top, bottom);
            const bool joined = touches && curve_.Line == LineStyle::kSolid;
            AddSpan(run.Column, joined ? std::min(top, last_->Y) : top,
                    joined ? std::max(bottom, last_->Y) : bottom);
        }
        last_ = PointOf(run.Last);
        lastColumn_ = run.Column;
    }

    int PixelOf(int column) const {
        return static_cast<int>(view_.Rect().Left + (column + 0.5) * grid_.ColumnWidth);
    }

    void AddLine(const PixelLine& line) {
        if (curve_.Style == CurveStyle::kPoint || shape_.Lines.Points() > kMostSpans) return;
        if (const auto seen = view_.Clip(line, kMargin)) shape_.Lines.Add(*seen);
    }

    void AddSpan(int column, double top, double bottom) {
        // a spike of 1e300 must not reach the painter, which counts in integers
        const double highest = view_.Rect().Top - kMargin;
        const double lowest = view_.Rect().Top + view_.Rect().Height + kMargin;
        if (bottom < highest || top > lowest) return;
        top = std::max(top, highest);
        bottom = std::min(bottom, lowest);
        if (shape_.Spans.size() < kMostSpans) {
            shape_.Spans.push_back({PixelOf(column), top, bottom});
            return;
        }
        // one span per column from here on: it covers all that further passes over the view can
        // add, and painting stays bounded
        filled_.resize(static_cast<std::size_t>(grid_.Count));
        filled_[static_cast<std::size_t>(column)].Add({top, bottom});
    }

    void AddFilled() {
        for (std::size_t column = 0; column < filled_.size(); ++column) {
            const ValueRange& range = filled_[column];
            if (range.Empty()) continue;
            shape_.Spans.push_back(
                {PixelOf(static_cast<int>(column)), range.Minimum, range.Maximum});
        }
    }

    void AddColumnMarkers(int column, double top, double bottom) {
        const double x = PixelOf(column) + 0.5;
        AddMarker({x, top});
        // a second marker closer than a pixel would only hide the first
        if (bottom - top >= 1) AddMarker({x, bottom});
    }

    void AddMarker(const PixelPoint& point) {
        const PixelRect& rect = view_.Rect();
        const bool seen = point.Y >= rect.Top - kMargin &&
                          point.Y <= rect.Top + rect.Height + kMargin &&
                          curve_.Style != CurveStyle::kLine;
        if (seen && shape_.Markers.size() < kMostSpans) shape_.Markers.push_back(point);
    }

    const Curve& curve_;
    const PixelView& view_;
    ColumnGrid grid_{view_};
    CurveShape shape_;
    std::optional<PixelPoint> last_;  // the reading that the next line begins at
    int lastColumn_ = 0;
    std::vector<ValueRange> filled_;  // per column, once there are too many spans
};

}  // namespace

void PixelPolylines::Add(const PixelLine& line) {
    const bool continues =
        // Exact comparison is meant: both ends come from the same reading, and a line that was cut
        // at the edge ends the polyline there.
        !points_.empty() && points_.back().X == line.From.X && points_.back().Y == line.From.Y;
    if (!continues) {
        begins_.push_back(points_.size());
        points_.push_back(line.From);
    }
    points_.push_back(line.To);
}

std::span<const PixelPoint> PixelPolylines::operator[](std::size_t index) const {
    const std::size_t end = index + 1 < begins_.size() ? begins_[index + 1] : points_.size();
    return std::span(points_).subspan(begins_[index], end - begins_[index]);
}

CurveShape ShapeOf(const Curve& curve, const PixelView& view) {
    return ShapeBuilder(curve, view).Build();
}

}  // namespace brask
