// Searching by going down the pyramids against looking at every reading.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "CurveOf.h"
#include "plot/CursorMoves.h"
#include "plot/PointSearch.h"

namespace brask {
namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();

using Measure = std::function<double(std::size_t)>;

class Searches : public testing::Test {
  protected:
    double Random(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(Engine);
    }
    // Values on a coarse grid, so that equal ones occur; one in twenty is not finite. Times go
    // forward, back every `back` readings, or anyhow when that is 0.
    Curve RandomCurve(int readings, int back) {
        const double odd[] = {std::nan(""), kNone, -kNone};
        std::vector<double> x;
        std::vector<double> y;
        for (int i = 0; i < readings; ++i) {
            const int rewound = back > 0 ? i - i / back * 150 : 0;
            const double time = back > 0 ? rewound : std::floor(Random(0, readings));
            x.push_back(Random(0, 1) < 0.95 ? time : odd[i % 3]);
            y.push_back(Random(0, 1) < 0.95 ? std::floor(Random(0, 500)) : odd[i % 3]);
        }
        return CurveOf(x, y);
    }
    // Whether the reading is drawn within the range.
    static bool Within(const Curve& curve, std::size_t i, const AxisRange& x) {
        return std::isfinite(curve.Y[i]) && curve.X[i] >= x.Minimum && curve.X[i] <= x.Maximum;
    }
    // The least of a measure over the readings within the range.
    static double Least(const Curve& curve, const AxisRange& x, const Measure& measure) {
        double least = kNone;
        for (std::size_t i = 0; i < curve.X.size(); ++i) {
            if (Within(curve, i, x)) least = std::min(least, measure(i));
        }
        return least;
    }
    void ForManyCurves(const std::function<void(const Curve&, const AxisRange&)>& check) {
        for (const int readings : {1, 64, 65, 700, 5000}) {
            for (const int back : {10000, 97, 0}) {
                const Curve curve = RandomCurve(readings, back);
                const double span = 2.0 * readings + 200;
                for (int i = 0; i < 50; ++i) {
                    const double from = Random(-span, span);
                    check(curve, {from, from + Random(0, span) * (i % 3 == 0 ? 0.02 : 1)});
                }
            }
        }
    }

    std::mt19937 Engine{42};
};

TEST_F(Searches, NearestInViewIsWithinHalfAPixelOfTheNearest) {
    int found = 0;
    ForManyCurves([&](const Curve& curve, const AxisRange& x) {
        PixelView view({50, 20, 800, 400}, x, {100, 400});
        if (found % 2 == 1) view.ReverseY();
        const PixelPoint place{Random(40, 860), Random(10, 430)};
        const auto distance = [&](std::size_t i) {
            return std::hypot(view.PixelX(curve.X[i]) - place.X, view.PixelY(curve.Y[i]) - place.Y);
        };
        const double nearest = Least(curve, x, [&](std::size_t i) {
            return curve.Y[i] >= 100 && curve.Y[i] <= 400 ? distance(i) : kNone;
        });
        if (nearest == kNone) return;
        ++found;
        const auto any = NearestInView(curve, view, place, kNone);
        ASSERT_TRUE(any.has_value());
        EXPECT_LE(any->Distance, nearest + 0.5);
        EXPECT_EQ(any->Distance, distance(any->Point));
        EXPECT_TRUE(NearestInView(curve, view, place, nearest + 0.01)) << "just within reach";
        EXPECT_FALSE(NearestInView(curve, view, place, nearest - 1)) << "out of reach";
    });
    EXPECT_GT(found, 100);
}

TEST_F(Searches, NearestInXAndExtremesAreExact) {
    ForManyCurves([&](const Curve& curve, const AxisRange& x) {
        const auto distance = [&](std::size_t i) { return std::abs(curve.X[i] - x.Minimum); };
        const double nearest = Least(curve, {-1e9, 1e9}, distance);
        const auto found = NearestInX(curve, x.Minimum);
        ASSERT_EQ(found.has_value(), nearest < kNone);
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
