#include "plot/PointSearch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace brask {
namespace {

constexpr double kNowhere = std::numeric_limits<double>::infinity();

// 0 within the range.
double DistanceTo(const ValueRange& range, double value) {
    return std::max({0.0, range.Minimum - value, value - range.Maximum});
}

// By one array alone.
struct AlongX {
    std::span<const double> X;
    const CurvePyramid& PyramidX;
    double Wanted;

    std::size_t Levels() const { return PyramidX.Levels(); }
    std::size_t Size() const { return X.size(); }
    std::size_t Blocks(std::size_t level) const { return PyramidX.Level(level).size(); }
    double ToBlock(std::size_t level, std::size_t block) const {
        const ValueRange& range = PyramidX.Level(level)[block];
        return range.Empty() ? kNowhere : DistanceTo(range, Wanted);
    }
    double ToReading(std::size_t i) const {
        return std::isfinite(X[i]) ? std::abs(X[i] - Wanted) : kNowhere;
    }
};

// By X, among the readings that a curve draws.
struct AlongCurve {
    const Curve& Shown;
    AlongX ByX;

    std::size_t Levels() const { return ByX.Levels(); }
    std::size_t Size() const { return ByX.Size(); }
    std::size_t Blocks(std::size_t level) const { return ByX.Blocks(level); }
    double ToBlock(std::size_t level, std::size_t block) const {
        if (Shown.PyramidY->Level(level)[block].Empty()) return kNowhere;
        return ByX.ToBlock(level, block);
    }
    double ToReading(std::size_t i) const {
        return std::isfinite(Shown.Y[i]) ? ByX.ToReading(i) : kNowhere;
    }
};

// On the screen. What lies beside the view is not there at all.
struct OnScreen {
    const Curve& Shown;
    const PixelView& View;
    PixelPoint Wanted;

    std::size_t Levels() const { return Shown.PyramidX->Levels(); }
    std::size_t Size() const { return Shown.X.size(); }
    std::size_t Blocks(std::size_t level) const { return Shown.PyramidX->Level(level).size(); }
    double ToBlock(std::size_t level, std::size_t block) const {
        const ValueRange& x = Shown.PyramidX->Level(level)[block];
        const ValueRange& y = Shown.PyramidY->Level(level)[block];
        if (x.Empty() || y.Empty()) return kNowhere;
        const ValueRange columns = Pixels(View.PixelX(x.Minimum), View.PixelX(x.Maximum));
        const ValueRange rows = Pixels(View.PixelY(y.Minimum), View.PixelY(y.Maximum));
        if (!InView(columns, rows)) return kNowhere;
        return std::hypot(DistanceTo(columns, Wanted.X), DistanceTo(rows, Wanted.Y));
    }
    double ToReading(std::size_t i) const {
        if (!std::isfinite(Shown.X[i]) || !std::isfinite(Shown.Y[i])) return kNowhere;
        const double x = View.PixelX(Shown.X[i]);
        const double y = View.PixelY(Shown.Y[i]);
        if (!InView({x, x}, {y, y})) return kNowhere;
        return std::hypot(x - Wanted.X, y - Wanted.Y);
    }
    bool InView(const ValueRange& columns, const ValueRange& rows) const {
        // half a pixel: a reading at the very end of the range is drawn on the edge
        constexpr double kEdge = 0.5;
        const PixelRect& rect = View.Rect();
        return columns.Maximum >= rect.Left - kEdge &&
               columns.Minimum <= rect.Left + rect.Width + kEdge &&
               rows.Maximum >= rect.Top - kEdge && rows.Minimum <= rect.Top + rect.Height + kEdge;
    }

    // a reversed axis turns the ends round
    static ValueRange Pixels(double a, double b) { return {std::min(a, b), std::max(a, b)}; }
};

// Depth first, the nearest block first, passing over every block that cannot hold anything nearer
// than what was found by more than `slack`.
template <class Metric>
class Search {
  public:
    Search(const Metric& metric, double within, double slack)
        : metric_(metric), slack_(slack), found_{0, within} {}

    std::optional<FoundPoint> Run() {
        if (metric_.Levels() > 0) Block(metric_.Levels() - 1, 0);
        if (!any_) return std::nullopt;
        return found_;
    }

  private:
    bool Hopeless(double distance) const {
        // no slack before anything is found: the outermost half pixel counts as well
        return distance >= found_.Distance - (any_ ? slack_ : 0);
    }

    void Block(std::size_t level, std::size_t block) {
        if (level == 0) {
            Readings(block);
            return;
        }
        struct Child {
            double Distance = kNowhere;
            std::size_t Block = 0;
        };
        std::array<Child, CurvePyramid::kFanOut> children;
        const std::size_t first = block * CurvePyramid::kFanOut;
        const std::size_t count =
            std::min(CurvePyramid::kFanOut, metric_.Blocks(level - 1) - first);
        for (std::size_t i = 0; i < count; ++i) {
            children[i] = {metric_.ToBlock(level - 1, first + i), first + i};
        }
        // equally near ones in the order of the file, so that the same place gives the same reading
        std::stable_sort(children.begin(), children.begin() + static_cast<std::ptrdiff_t>(count),
                         [](const Child& a, const Child& b) { return a.Distance < b.Distance; });
        for (std::size_t i = 0; i < count; ++i) {
            if (Hopeless(children[i].Distance)) return;
            Block(level - 1, children[i].Block);
        }
    }

    void Readings(std::size_t block) {
        const std::size_t first = block * CurvePyramid::kBlock;
        const std::size_t end = std::min(first + CurvePyramid::kBlock, metric_.Size());
        for (std::size_t i = first; i < end; ++i) {
            const double distance = metric_.ToReading(i);
            if (distance >= found_.Distance) continue;
            found_ = {i, distance};
            any_ = true;
        }
    }

    const Metric& metric_;
    double slack_;
    FoundPoint found_;
    bool any_ = false;
};

}  // namespace

std::optional<FoundPoint> NearestInView(const Curve& curve, const PixelView& view, PixelPoint place,
                                        double within) {
    // nobody can point more exactly than to half a pixel
    constexpr double kSlack = 0.5;
    const OnScreen metric{curve, view, place};
    return Search<OnScreen>(metric, within, kSlack).Run();
}

std::optional<FoundPoint> NearestValue(std::span<const double> values, const CurvePyramid& pyramid,
                                       double value) {
    const AlongX metric{values, pyramid, value};
    return Search<AlongX>(metric, kNowhere, 0).Run();
}

std::optional<FoundPoint> NearestInX(const Curve& curve, double x) {
    const AlongCurve metric{curve, {curve.X, *curve.PyramidX, x}};
    return Search<AlongCurve>(metric, kNowhere, 0).Run();
}

std::optional<ChartPoint> NearestPointOnAxis(const Chart& chart, ChartAxis axis,
                                             const PixelView& view, PixelPoint place,
                                             double within) {
    std::optional<ChartPoint> nearest;
    for (std::size_t i = 0; i < chart.Curves().size(); ++i) {
        if (chart.Curves()[i].Axis != axis) continue;
        const auto found = NearestInView(chart.Curves()[i], view, place, within);
        if (!found) continue;
        nearest = ChartPoint{i, found->Point};
        // the next curve must come nearer than this one
        within = found->Distance;
    }
    return nearest;
}

}  // namespace brask
