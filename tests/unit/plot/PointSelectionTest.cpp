#include <cmath>

#include "BuiltPlot.h"
#include "plot/PointSelection.h"

namespace brask {
namespace {

using enum GraphType;

class Selecting : public BuiltPlot {
  protected:
    Selecting() {
        Data.InstrumentGas = "CO\xB2";
        Select.OnChange([this] { ++Changes; });
    }
    TemperatureUnit Unit{true};
    PointSelection Select{{Chart1, Plot, Data, Unit, Locale, Texts1}};
    int Changes = 0;
};

TEST_F(Selecting, ReadoutsOfTheThreeLayouts) {
    const std::tuple<GraphType, ChartPoint, const char*> cases[] = {
        {kContinuous, {0, 0}, "05-Mar-2004 06:00:00, CO²=12.5 ppm"},
        {kContinuous, {1, 1}, "05-Mar-2004 13:30:00, Temperature=79.16°F"},
        {kOverlapDays, {0, 0}, "05-Mar-2004 at 06:00:00, 12.5 ppm"},
        {kOverlapDays, {1, 0}, "05-Mar-2004 06:00:00, Temperature=70°F"},
        {kOverlapDays, {2, 0}, "06-Mar-2004 at 00:00:00, 3 ppm"},
        {kOverlapWeeks, {0, 2}, "06-Mar-2004 00:00:00, 3 ppm"},
        {kOverlapWeeks, {1, 1}, "05-Mar-2004 13:30:00, Temperature=79.16°F"},
    };
    for (const auto& [layout, point, readout] : cases) {
        Build(layout, {{k5March2004 + 0.25, 12.5, 70},
                       {k5March2004 + 0.5625, 0.1, 9.0 / 5.0 * 26.2 + 32},
                       {k5March2004 + 1 - 1e-7, 3, 50}});  // shown as midnight
        EXPECT_EQ(Chart1.Readout, "No Data Point Selected");
        Select.PointSelected(point);
        EXPECT_EQ(Chart1.Readout, readout);
    }
}

TEST_F(Selecting, OnlyAnotherSelectionIsNewsAndNoneWhileSuppressed) {
    Build(kContinuous, {{k5March2004, 1, 20}, {k5March2004 + 1, 1, 20}});
    {
        const PointSelection::Suppression outer(Select);
        { const PointSelection::Suppression inner(Select); }
        Select.PointSelected({0, 0});
        EXPECT_FALSE(Select.Current().has_value());
    }
    Select.PointSelected({0, 0});
    Chart1.Readout.clear();
    Select.PointSelected({0, 0});
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Chart1.Readout, "05-Mar-2004 00:00:00, CO²=1 ppm") << "refreshed";
    Select.PointSelected({0, 1});
    Select.Forget();
    Select.Forget();
    EXPECT_EQ(Changes, 3);
}

class Places : public BuiltPlot {};

TEST_F(Places, EveryPointIsItsReadingAndEveryReadingItsPoint) {
    // days in one run, in turns, and going on after the next has begun
    std::vector<Reading> readings;
    for (int i = 0; i < 120; ++i) {
        const int day = i < 40 ? i / 20 : i < 80 ? 3 + i % 3 : 6 - (i > 99 ? i % 2 : 0);
        readings.push_back({k5March2004 + day + i / 200.0, 1.0 * i, 1.0 * i});
    }
    for (const GraphType layout : {kContinuous, kOverlapDays, kOverlapWeeks}) {
        Build(layout, readings);
        const ReadingPlaces& places = Plot.Places();
        std::vector<bool> shown(readings.size());
        for (std::size_t curve = 0; curve < Chart1.Curves().size(); ++curve) {
            const Curve& at = Chart1.Curves()[curve];
            for (std::size_t point = 0; point < at.Y.size(); ++point) {
                const auto reading = places.ReadingOf({curve, point});
                ASSERT_EQ(reading, static_cast<std::size_t>(at.Y[point]));
                shown[*reading] = true;
                const ChartPoint back = places.PlaceOf(*reading, at.Axis).value();
                EXPECT_EQ(Chart1.Curves()[back.Curve].Axis, at.Axis);
                EXPECT_EQ(Chart1.Curves()[back.Curve].Y[back.Point], at.Y[point]);
            }
            EXPECT_EQ(places.ReadingOf({curve, at.Y.size()}), std::nullopt);
        }
        for (std::size_t i = 0; i < readings.size(); ++i) {
            EXPECT_EQ(places.PlaceOf(i, ChartAxis::kRight).has_value(), shown[i]) << i;
        }
    }
}

TEST_F(Places, TheReadingNearestToAMomentLiesWithinTheData) {
    for (const GraphType layout : {kContinuous, kOverlapDays}) {
        Build(layout, {{k5March2004 + 2, 1, 1}, {k5March2004, 1, 1}, {k5March2004 + 5, 1, 1}});
        const ReadingPlaces& places = Plot.Places();
        EXPECT_EQ(places.NearestReading(k5March2004), 1U);
        EXPECT_EQ(places.NearestReading(k5March2004 + 3.4), 0U);
        EXPECT_EQ(places.NearestReading(k5March2004 + 5), 2U);
        for (const double outside : {k5March2004 - 1e-6, k5March2004 + 5.01, std::nan("")}) {
            EXPECT_EQ(places.NearestReading(outside), std::nullopt);
        }
        // a load that fails brings no other arrays for those that are gone
        Plot.Clear();
        EXPECT_EQ(places.NearestReading(k5March2004), std::nullopt);
        EXPECT_TRUE(Chart1.Curves().empty() && Plot.PeriodStarts().empty());
    }
}

}  // namespace
}  // namespace brask
