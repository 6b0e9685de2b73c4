#include "plot/CursorMoves.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "plot/AxisMoves.h"
#include "plot/PointSearch.h"

namespace brask {
namespace {

bool Drawable(const Curve& curve, std::size_t point) {
    return std::isfinite(curve.X[point]) && std::isfinite(curve.Y[point]);
}

// Goes down the pyramids where a block reaches into the range and may hold a better value.
class ExtremeSearch {
  public:
    ExtremeSearch(const Curve& curve, const AxisRange& x, bool highest)
        : curve_(curve), x_(x), highest_(highest) {}

    std::optional<std::size_t> Run() {
        if (curve_.PyramidX->Levels() > 0) Block(curve_.PyramidX->Levels() - 1, 0);
        return best_;
    }

  private:
    // Of the readings from `first` on, of which none is higher than `height`.
    bool Better(double height, std::size_t first) const {
        return !best_ || height > bestHeight_ || (height == bestHeight_ && first < *best_);
    }
    // The least Y is the greatest height of the curve turned upside down.
    double Height(double y) const { return highest_ ? y : -y; }

    // Of a block that reaches into the range.
    std::optional<double> HeightOf(std::size_t level, std::size_t block) const {
        const ValueRange& x = curve_.PyramidX->Level(level)[block];
        const ValueRange& y = curve_.PyramidY->Level(level)[block];
        if (x.Empty() || y.Empty()) return std::nullopt;
        if (x.Maximum < x_.Minimum || x.Minimum > x_.Maximum) return std::nullopt;
        return Height(highest_ ? y.Maximum : y.Minimum);
    }

    void Block(std::size_t level, std::size_t block) {
        if (level == 0) {
            Readings(block);
            return;
        }
        struct Child {
            double Height = 0;
            std::size_t Block = 0;
        };
        std::array<Child, CurvePyramid::kFanOut> children;
        auto end = children.begin();
        const std::size_t first = block * CurvePyramid::kFanOut;
        const std::size_t last =
            std::min(first + CurvePyramid::kFanOut, curve_.PyramidX->Level(level - 1).size());
        for (std::size_t child = first; child < last; ++child) {
            if (const auto height = HeightOf(level - 1, child)) *end++ = {*height, child};
        }
        // the highest first: on a rising curve every block is better than the one before it
        std::stable_sort(children.begin(), end,
                         [](const Child& a, const Child& b) { return a.Height > b.Height; });
        for (auto child = children.begin(); child != end; ++child) {
            const std::size_t reading = child->Block * CurvePyramid::Span(level - 1);
            if (Better(child->Height, reading)) Block(level - 1, child->Block);
        }
    }

    void Readings(std::size_t block) {
        const std::size_t first = block * CurvePyramid::kBlock;
        const std::size_t end = std::min(first + CurvePyramid::kBlock, curve_.X.size());
        for (std::size_t i = first; i < end; ++i) {
            const bool inside = curve_.X[i] >= x_.Minimum && curve_.X[i] <= x_.Maximum;
            if (!inside || !Drawable(curve_, i) || !Better(Height(curve_.Y[i]), i)) continue;
            best_ = i;
            bestHeight_ = Height(curve_.Y[i]);
        }
    }

    const Curve& curve_;
    AxisRange x_;
    bool highest_;
    std::optional<std::size_t> best_;
    double bestHeight_ = 0;
};

}  // namespace

std::optional<ChartPoint> CursorStart(const Chart& chart) {
    if (chart.Selected) return chart.Selected;
    for (std::size_t i = 0; i < chart.Curves().size(); ++i) {
        if (chart.Curves()[i].Axis != chart.ActiveAxis) continue;
        if (const auto found = NearestInX(chart.Curves()[i], MiddleOf(chart.X.Range()))) {
            return ChartPoint{i, found->Point};
        }
    }
    return std::nullopt;
}

std::size_t SteppedPoint(const Curve& curve, std::size_t point, std::ptrdiff_t readings) {
    const auto last = static_cast<std::ptrdiff_t>(curve.X.size()) - 1;
    const std::ptrdiff_t step = readings < 0 ? -1 : 1;
    const auto begin = static_cast<std::ptrdiff_t>(point);
    // onwards from the wanted place, and when the curve ends there, back towards the start
    const std::ptrdiff_t wanted = std::clamp<std::ptrdiff_t>(begin + readings, 0, last);
    for (std::ptrdiff_t i = wanted; i >= 0 && i <= last; i += step) {
        if (Drawable(curve, static_cast<std::size_t>(i))) return static_cast<std::size_t>(i);
    }
    for (std::ptrdiff_t i = wanted; i != begin; i -= step) {
        if (Drawable(curve, static_cast<std::size_t>(i))) return static_cast<std::size_t>(i);
    }
    return point;
}

std::ptrdiff_t FastCursorStep(const Curve& curve, const AxisRange& x) {
    const auto first = NearestInX(curve, x.Minimum);
    const auto last = NearestInX(curve, x.Maximum);
    if (!first || !last) return 2;
    const std::size_t low = std::min(first->Point, last->Point);
    const std::size_t high = std::max(first->Point, last->Point);
    return std::max<std::ptrdiff_t>(2, static_cast<std::ptrdiff_t>((high - low) / 10));
}

std::optional<std::size_t> ExtremeWithin(const Curve& curve, const AxisRange& x, bool highest) {
    return ExtremeSearch(curve, x, highest).Run();
}

}  // namespace brask
