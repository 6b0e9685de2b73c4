// What of a curve reaches the screen: pyramids, columns and shapes against brute force.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "CurveOf.h"
#include "plot/ColumnReduction.h"
#include "plot/CurveShape.h"

namespace brask {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Time that mostly goes on, with gaps and steps back; values with spikes, some not finite.
Curve RandomCurve(std::mt19937& random, std::size_t size) {
    std::vector<double> x(size);
    std::vector<double> y(size);
    double now = 0;
    for (std::size_t i = 0; i < size; ++i) {
        now += random() % 50 == 0 ? std::uniform_real_distribution<>(-30, 60)(random) : 0.1;
        x[i] = now;
        y[i] = random() % 40 == 0 ? 900 : static_cast<double>(random() % 100);
        if (random() % 60 == 0) y[i] = random() % 2 == 0 ? kInfinity : std::nan("");
    }
    return CurveOf(x, y);
}

bool Finite(const Curve& curve, std::size_t i) {
    return std::isfinite(curve.X[i]) && std::isfinite(curve.Y[i]);
}

TEST(CurvePyramid, EveryBlockHoldsTheExtremesOfItsFiniteValues) {
    std::mt19937 random(3);
    for (const std::size_t size : {0, 1, 63, 64, 65, 511, 512, 513, 4097, 40000}) {
        const Curve curve = RandomCurve(random, size);
        const CurvePyramid& pyramid = *curve.PyramidY;
        ASSERT_EQ(pyramid.Levels() == 0, size == 0);
        for (std::size_t level = 0; level < pyramid.Levels(); ++level) {
            const std::size_t span = CurvePyramid::Span(level);
            ASSERT_EQ(pyramid.Level(level).size(), (size + span - 1) / span);
            for (std::size_t block = 0; block < pyramid.Level(level).size(); ++block) {
                ValueRange expected;
                for (std::size_t i = block * span; i < std::min(size, (block + 1) * span); ++i) {
                    expected.Add(curve.Y[i]);
                }
                ASSERT_EQ(pyramid.Level(level)[block].Minimum, expected.Minimum);
                ASSERT_EQ(pyramid.Level(level)[block].Maximum, expected.Maximum);
            }
        }
        EXPECT_EQ(pyramid.Whole().Empty(), size == 0);
        EXPECT_LE(pyramid.Bytes(), size / 2 + 16);
    }
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
        const Curve curve = RandomCurve(random, 1 + random() % 5000);
        const double end = curve.X.back() + 1;
        const PixelView view({10, 5, 200, 100},
                             {0.1 * static_cast<double>(random() % 5) * end, end}, {-5, 905});
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
    for (const std::size_t size : {2, 50, 300, 3000, 30000}) {
        for (const LineStyle style : {LineStyle::kSolid, LineStyle::kDotted}) {
            Curve curve = RandomCurve(random, size);
            curve.Line = style;
            const PixelView view({10, 5, 200, 100}, {0, curve.X.back() + 1}, {-5, 905});
            const CurveShape shape = ShapeOf(curve, view);
            EXPECT_EQ(shape.Dense, size >= 3000) << size;
            for (std::size_t i = 0; i < size; ++i) {
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
    const struct {
        const char* What;
        std::vector<double> X;
        std::vector<double> Y;
        CurveStyle Style;
        std::size_t Lines;
        std::size_t Markers;
    } cases[] = {
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
    for (const auto& one : cases) {
        Curve curve = CurveOf(one.X, one.Y);
        curve.Style = one.Style;
        const CurveShape shape = ShapeOf(curve, view);
        EXPECT_EQ(shape.Lines.Count(), one.Lines) << one.What;
        EXPECT_EQ(shape.Markers.size(), one.Markers) << one.What;
    }
}

TEST(CurveShape, LineToAReadingFarOffMeetsTheOneInView) {
    const PixelView view({0, 0, 100, 100}, {0, 1}, {0, 1});
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

}  // namespace
}  // namespace brask
