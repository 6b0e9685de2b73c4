// What of a curve reaches the screen, and the reading nearest to a place on it: against brute
// force, and with that the pyramids through which both are found.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <tuple>

#include "CurveOf.h"
#include "plot/ColumnReduction.h"
#include "plot/CursorMoves.h"
#include "plot/CurveShape.h"
#include "plot/PointSearch.h"

namespace brask {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double Random(std::mt19937& random, double low, double high) {
    return std::uniform_real_distribution<>(low, high)(random);
}

// Values on a coarse grid, so that equal ones occur; these shares of times and values are not
// finite. Times go forward, back every `back` readings, or anyhow when that is 0.
Curve RandomCurve(std::mt19937& random, int readings, int back, double oddX, double oddY) {
    const auto below = [&](double limit) { return Random(random, 0, limit); };
    const double notFinite[] = {std::nan(""), kInfinity, -kInfinity};
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < readings; ++i) {
        const double time = back > 0 ? i - i / back * 150 : std::floor(below(readings));
        x.push_back(below(1) < oddX ? notFinite[i % 3] : time);
        y.push_back(below(1) < oddY ? notFinite[i % 3] : std::floor(below(500)));
    }
    return CurveOf(x, y);
}

bool Finite(const Curve& curve, std::size_t i) {
    return std::isfinite(curve.X[i]) && std::isfinite(curve.Y[i]);
}

// Column by column as every reading on its own would fall.
std::vector<ColumnRun> RunsByBruteForce(const Curve& curve, const ColumnGrid& grid) {
    std::vector<ColumnRun> runs;
    for (std::size_t i = 0; i < curve.X.size(); ++i) {
        if (!Finite(curve, i)) continue;
        const int column = grid.ColumnOf(curve.X[i]);
        if (runs.empty() || runs.back().Column != column) runs.push_back({column, i, i, {}});
        runs.back().Last = i;
        runs.back().Y.Add(curve.Y[i]);
    }
    return runs;
}

TEST(ColumnReduction, GivesWhatEveryReadingOnItsOwnWouldGive) {
    std::mt19937 random(4);
    for (int round = 0; round < 200; ++round) {
        // now and then with one more level of blocks, and with nothing but numbers
        const int size = 1 + static_cast<int>(random() % (round % 20 == 7 ? 40000 : 5000));
        const Curve curve =
            RandomCurve(random, size, 97 * (round % 3), 0, round % 4 == 0 ? 0 : 0.02);
        const double from = 0.1 * static_cast<double>(random() % 8) - 0.4;
        const PixelView view({10, 5, 200, 100}, {from * size, 0.5 * size}, {-5, 505});
        const ColumnGrid grid{view, round % 2 == 0 ? 200 : 67, round % 2 == 0 ? 1.0 : 3.0};
        const auto expected = RunsByBruteForce(curve, grid);
        std::size_t at = 0;
        ForEachColumnRun(curve, grid, [&](const ColumnRun& run) {
            const bool same = at < expected.size() && run.Column == expected[at].Column &&
                              run.First == expected[at].First && run.Last == expected[at].Last &&
                              run.Y.Minimum == expected[at].Y.Minimum &&
                              run.Y.Maximum == expected[at].Y.Maximum;
            EXPECT_TRUE(same) << "round " << round << " run " << at;
            ++at;
            return same;
        });
        ASSERT_EQ(at, expected.size());
    }
}

// Whether paint of the shape lies on this column and height.
bool Covers(const CurveShape& shape, const PixelPoint& point) {
    const auto span = [&](const PixelSpan& s) {
        return std::abs(s.X + 0.5 - point.X) <= 2 && s.Top <= point.Y && point.Y <= s.Bottom;
    };
    if (std::any_of(shape.Spans.begin(), shape.Spans.end(), span)) return true;
    for (std::size_t line = 0; line < shape.Lines.Count(); ++line) {
        for (const PixelPoint& corner : shape.Lines[line]) {
            if (std::hypot(corner.X - point.X, corner.Y - point.Y) < 1e-6) return true;
        }
    }
    return false;
}

TEST(CurveShape, EveryReadingInViewIsCoveredWithPaint) {
    std::mt19937 random(5);
    for (const int size : {2, 50, 300, 3000, 30000}) {
        for (const LineStyle style : {LineStyle::kSolid, LineStyle::kDotted}) {
            Curve curve = RandomCurve(random, size, 700, 0, 0.02);
            curve.Line = style;
            const PixelView view({10, 5, 200, 100}, {0, 1.0 * size}, {-5, 505});
            const CurveShape shape = ShapeOf(curve, view);
            EXPECT_EQ(shape.Dense, size >= 3000) << size;
            for (std::size_t i = 0; i < curve.X.size(); ++i) {
                const PixelPoint point{view.PixelX(curve.X[i]), view.PixelY(curve.Y[i])};
                if (!Finite(curve, i) || point.X < 10 || point.X > 210) continue;
                if (size == 2 && !Finite(curve, 1 - i)) continue;
                ASSERT_TRUE(Covers(shape, point)) << "reading " << i << " of " << size;
            }
        }
    }
}

TEST(CurveShape, LinesReachAcrossTheViewAndCodesDecideWhatIsMarked) {
    const PixelView view({0, 0, 100, 100}, {0, 1}, {0, 1});
    // what, X, Y and style; how many lines and markers
    using Values = std::vector<double>;
    using Case = std::tuple<const char*, Values, Values, CurveStyle, std::size_t, std::size_t>;
    const Case cases[] = {
        {"between two readings", {-5, 6}, {0.5, 0.5}, CurveStyle::kLine, 1, 0},
        {"markers only in view", {-5, 0.5, 6}, {0.5, 0.5, 0.5}, CurveStyle::kLineWithMarkers, 1, 1},
        {"passing above", {-5, 6}, {9, 9}, CurveStyle::kLine, 0, 0},
        {"wholly to the left", {-5, -4, -3}, {0, 1, 0}, CurveStyle::kLineWithMarkers, 0, 0},
        {"one point", {0.5}, {0.5}, CurveStyle::kPoint, 0, 1},
        {"one point, plain line", {0.5}, {0.5}, CurveStyle::kLine, 0, 0},
        {"back in time", {0.9, 0.1}, {0.1, 0.9}, CurveStyle::kLine, 1, 0},
        {"overflow left out", {0.1, 0.5, 0.9}, {0.5, kInfinity, 0.5}, CurveStyle::kLine, 1, 0},
        {"nothing", {}, {}, CurveStyle::kLine, 0, 0},
    };
    for (const auto& [what, x, y, style, lines, markers] : cases) {
        Curve curve = CurveOf(x, y);
        curve.Style = style;
        const CurveShape shape = ShapeOf(curve, view);
        EXPECT_EQ(shape.Lines.Count(), lines) << what;
        EXPECT_EQ(shape.Markers.size(), markers) << what;
    }
    // however far off a reading is, the line to it meets the one in view
    const CurveShape shape = ShapeOf(CurveOf({0.25, 0.5}, {1e300, 0.5}), view);
    ASSERT_EQ(shape.Lines.Count(), 1U);
    EXPECT_NEAR(shape.Lines[0].front().Y, -16, 3);
    EXPECT_NEAR(shape.Lines[0].back().Y, 50, 1e-6);
}

TEST(PixelView, DrawsAnyRange) {
    const std::pair<AxisRange, AxisRange> cases[] = {{{1, 3}, {1, 3}},
                                                     {{4995, 5}, {5, 4995}},
                                                     {{7, 7}, {6.5, 7.5}},
                                                     {{std::nan(""), 2}, {0, 2}},
                                                     {{-kInfinity, kInfinity}, {-1e249, 1e249}}};
    for (const auto& [range, drawn] : cases) EXPECT_EQ(DrawableRange(range, 0.5), drawn);
    const AxisRange narrow = DrawableRange({1e6, std::nextafter(1e6, 2e6)}, 0.5);
    EXPECT_GT(narrow.Maximum - narrow.Minimum, 5e-7);
}

using Measure = std::function<double(std::size_t)>;

// Whether the reading is drawn within the range.
bool Within(const Curve& curve, std::size_t i, const AxisRange& x) {
    return std::isfinite(curve.Y[i]) && curve.X[i] >= x.Minimum && curve.X[i] <= x.Maximum;
}
// The least of a measure over the readings within the range.
double Least(const Curve& curve, const AxisRange& x, const Measure& measure) {
    double least = kInfinity;
    for (std::size_t i = 0; i < curve.X.size(); ++i) {
        if (Within(curve, i, x)) least = std::min(least, measure(i));
    }
    return least;
}
void ForManyCurves(std::mt19937& random,
                   const std::function<void(const Curve&, const AxisRange&)>& check) {
    for (const int readings : {1, 64, 65, 700, 5000}) {
        for (const int back : {10000, 97, 0}) {
            const Curve curve = RandomCurve(random, readings, back, 0.05, 0.05);
            const double span = 2.0 * readings + 200;
            for (int i = 0; i < 50; ++i) {
                const double from = Random(random, -span, span);
                check(curve, {from, from + Random(random, 0, span) * (i % 3 == 0 ? 0.02 : 1)});
            }
        }
    }
}

TEST(PointSearch, NearestInViewIsWithinHalfAPixelOfTheNearest) {
    int found = 0;
    std::mt19937 random(42);
    ForManyCurves(random, [&](const Curve& curve, const AxisRange& x) {
        PixelView view({50, 20, 800, 400}, x, {100, 400});
        if (found % 2 == 1) view.ReverseY();
        const PixelPoint place{Random(random, 40, 860), Random(random, 10, 430)};
        const auto distance = [&](std::size_t i) {
            return std::hypot(view.PixelX(curve.X[i]) - place.X, view.PixelY(curve.Y[i]) - place.Y);
        };
        const double nearest = Least(curve, x, [&](std::size_t i) {
            return curve.Y[i] >= 100 && curve.Y[i] <= 400 ? distance(i) : kInfinity;
        });
        if (nearest == kInfinity) return;
        ++found;
        const auto any = NearestInView(curve, view, place, kInfinity);
        ASSERT_TRUE(any.has_value());
        EXPECT_LE(any->Distance, nearest + 0.5);
        EXPECT_EQ(any->Distance, distance(any->Point));
        EXPECT_TRUE(NearestInView(curve, view, place, nearest + 0.01)) << "just within reach";
        EXPECT_FALSE(NearestInView(curve, view, place, nearest - 1)) << "out of reach";
    });
    EXPECT_GT(found, 100);
}

TEST(PointSearch, NearestInXAndExtremesAreExact) {
    std::mt19937 random(42);
    ForManyCurves(random, [&](const Curve& curve, const AxisRange& x) {
        const auto distance = [&](std::size_t i) { return std::abs(curve.X[i] - x.Minimum); };
        const double nearest = Least(curve, {-1e9, 1e9}, distance);
        const auto found = NearestInX(curve, x.Minimum);
        ASSERT_EQ(found.has_value(), nearest < kInfinity);
        if (!found) return;
        EXPECT_EQ(found->Distance, nearest);
        EXPECT_TRUE(Within(curve, found->Point, {-1e9, 1e9})) << "cannot be seen";
        for (const bool highest : {false, true}) {
            const double sign = highest ? -1 : 1;
            const double best = Least(curve, x, [&](std::size_t i) { return sign * curve.Y[i]; });
            std::optional<std::size_t> earliest;
            for (std::size_t i = curve.X.size(); i-- > 0;) {
                if (Within(curve, i, x) && sign * curve.Y[i] == best) earliest = i;
            }
            EXPECT_EQ(ExtremeWithin(curve, x, highest), earliest);
        }
    });
}

}  // namespace
}  // namespace brask
