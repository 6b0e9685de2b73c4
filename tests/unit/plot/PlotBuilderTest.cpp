// The chart that is built from a data set, and the way from its points back to the readings.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "data/DateTime.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "plot/PlotBuilder.h"
#include "plot/PointSelection.h"

namespace brask {
namespace {

using enum GraphType;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double k5March2004 = 38051;  // a Friday

struct Reading {
    double Time;
    double Gas;
    double Temperature;
};

class BuiltPlot : public testing::Test {
  protected:
    // Rebuilds the chart from these readings, with the settings in Store.
    void Build(GraphType layout, const std::vector<Reading>& readings) {
        Data.ReadingTime.clear();
        Data.GasPpm.clear();
        Data.Temperature.clear();
        for (const Reading& reading : readings) {
            Data.ReadingTime.push_back(reading.Time);
            Data.GasPpm.push_back(reading.Gas);
            Data.Temperature.push_back(reading.Temperature);
        }
        Data.ReadingCount = static_cast<std::int32_t>(readings.size());
        Store.Values["GraphType"] = std::to_string(static_cast<int>(layout));
        MemorySettingsStore own;
        const Settings settings(Store, own, Locale, [](const auto&, const auto&) {});
        Options = ReadPlotOptions(settings, TemperatureUnit());
        Plot.Rebuild(Options);
    }
    const Curve& At(std::size_t index) const { return Chart1.Curves()[index]; }
    std::string Names() const {
        std::string names;
        for (const Curve& curve : Chart1.Curves()) names += curve.Name + "|";
        return names;
    }
    ColorValue Color(int period) const { return Options.Colors.CurveColor(period); }

    Chart Chart1;
    DataSet Data;
    FixedUserLocale Locale;
    EnglishTexts Texts1;
    MemorySettingsStore Store;
    PlotOptions Options;
    PlotBuilder Plot{Chart1, Data, Locale, Texts1};
    TemperatureUnit Unit{true};
};

std::vector<double> Values(std::span<const double> values) {
    return {values.begin(), values.end()};
}

TEST_F(BuiltPlot, ContinuousIsOneCurveOfEachOverAllReadings) {
    Build(kContinuous,
          {{k5March2004, 1, 20}, {k5March2004 + 2, 7.5, 25}, {k5March2004 + 1, 3, 15}});
    EXPECT_EQ(Names(), "Gas|Temperature|");
    EXPECT_EQ(At(0).X.data(), Data.ReadingTime.data()) << "shared, not copied";
    EXPECT_EQ(Values(At(1).Y), (std::vector<double>{20, 25, 15})) << "in the order of the file";
    EXPECT_TRUE(At(0).Axis == ChartAxis::kLeft && At(1).Axis == ChartAxis::kRight);
    EXPECT_EQ(Chart1.View(), (ViewRecord{{k5March2004, k5March2004 + 2}, {-0.1, 12.5}, {10, 30}}));
    EXPECT_EQ(Chart1.Labels.DateFormat, "%d-%b-%Y\n%X");
}

TEST_F(BuiltPlot, AxesStartFromTheirStatedExtremes) {
    const std::tuple<const char*, std::vector<Reading>, AxisRange, AxisRange> cases[] = {
        {"nothing", {}, {-0.1, 5}, {4995, 5}},
        {"gas at or below 0", {{38051, -3, 20}, {38052, 0, 20}}, {-0.1, 5}, {15, 25}},
        {"all below freezing", {{38051, 1, -20}, {38052, 1, -10}}, {-0.1, 6}, {-25, 5}},
        {"hotter than anything", {{38051, 1, 6000}}, {-0.1, 6}, {4995, 6005}},
        {"overflowed conversion", {{38051, 1, 20}, {38052, 1, kInfinity}}, {-0.1, 6}, {15, 25}},
        {"nothing finite", {{38051, 1, -kInfinity}}, {-0.1, 6}, {4995, 5}}};
    for (const auto& [what, readings, gas, temperature] : cases) {
        for (const GraphType layout : {kContinuous, kOverlapDays, kOverlapWeeks}) {
            Build(layout, readings);
            EXPECT_EQ(Chart1.Y.Range(), gas) << what;
            EXPECT_EQ(Chart1.Y1.Range(), temperature) << what;
            EXPECT_EQ(Chart1.Title.has_value(), !readings.empty()) << what;
        }
    }
    Build(kContinuous, {});
    EXPECT_EQ(FormatReadingTime(Chart1.X.Range().Minimum), "10-Mar-2003 08:00:00");
    Build(kContinuous, {{30000, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{30000, kEarliestDisplayDate}));
    Build(kContinuous, {{kLatestDisplayDate + 9, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{kLatestDisplayDate, kLatestDisplayDate + 9}));
}

TEST_F(BuiltPlot, DaysLieOverOneAnotherAndInSeveralRunsStayOneCurve) {
    Store.Values["NumPlotColorsDefined"] = "2";
    Store.Values["PlotLineColor1"] = "&HFF";
    Store.Values["PlotLineColor2"] = "&HFF00";
    Store.Values["UseDataMarkers"] = "NO";
    Build(kOverlapDays, {{k5March2004 + 0.25, 1, 20},
                         {k5March2004 + 1, 9, 30},
                         {k5March2004 + 0.5, 3, 21},
                         {k5March2004 + 2.75, 4, 10}});
    // two readings taken, so the second period begins at the third: again the first day
    EXPECT_EQ(Names(),
              "05-Mar-2004|05-Mar-2004 Temp|05-Mar-2004|05-Mar-2004 Temp|"
              "07-Mar-2004|07-Mar-2004 Temp|");
    EXPECT_EQ(Plot.PeriodStarts(), (std::vector<std::int32_t>{0, 2, 3}));
    EXPECT_EQ(Values(At(0).X), (std::vector<double>{6, 12}));
    EXPECT_EQ(Values(At(0).Y), (std::vector<double>{1, 3}));
    EXPECT_EQ(Values(At(1).Y), (std::vector<double>{20, 21}));
    EXPECT_EQ(At(1).Line, LineStyle::kDotted);
    EXPECT_EQ(At(1).Color, ColorValue{0xFF});
    EXPECT_EQ(At(2).Color, ColorValue{0xFF00});
    EXPECT_EQ(At(4).Marker.Color, At(0).Color) << "colours repeat";
    EXPECT_EQ(At(5).Style, CurveStyle::kPoint) << "a line needs two readings";
}

TEST_F(BuiltPlot, HoursAndDaysAreLabelled) {
    Build(kOverlapDays, {});
    const auto& labels = Chart1.Labels.Custom;
    ASSERT_EQ(labels.size(), 25U);
    EXPECT_EQ(labels[9].Text + labels[24].Text, "09:0000:00");
    EXPECT_TRUE(labels[24].Visible && !labels[9].Visible);
    EXPECT_EQ(labels[24].Position, 24);
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{0, 24}));
    for (const int start : {0, 1}) {
        Store.Values["StartWeekOn"] = std::to_string(start);
        Build(kOverlapWeeks, {{k5March2004 + 2, 2, 2}, {k5March2004 + 3, 3, 3}});
        EXPECT_EQ(labels.front().Text, start == 0 ? "Sunday" : "Monday");
        EXPECT_EQ(labels[6].Text, start == 0 ? "Saturday" : "Sunday");
        EXPECT_EQ(Chart1.X.Range(), (AxisRange{0, 7}));
        EXPECT_EQ(Plot.PeriodStarts().size(), start == 0 ? 1U : 2U);
    }
}

TEST_F(BuiltPlot, TitlesAreComposedFromTheHeaderAndTheSizeFollowsTheLength) {
    constexpr std::size_t kFixedPart = 36;  // "VEK Talvex© K42, Instrument: ,  S/N:"
    const std::pair<std::size_t, int> cases[] = {{36, 12}, {40, 12}, {41, 10}, {45, 10}, {46, 8},
                                                 {50, 8},  {51, 6},  {60, 6},  {61, 4}};
    for (const auto& [length, points] : cases) {
        Data.InstrumentName = std::string(length - kFixedPart, '\xE9');
        Build(kContinuous, {{k5March2004, 1, 1}});
        EXPECT_EQ(Chart1.Title->FontSize, points) << length;
    }
    Data.InstrumentName = "K42 %2";
    Data.InstrumentSerialNumber = "0417";
    Data.InstrumentGas = "CO\xB2";
    Build(kContinuous, {{k5March2004 + 1, 1, 1}, {k5March2004 + 0.5, 1, 1}});
    EXPECT_EQ(Chart1.Title->Title, "VEK Talvex© K42, Instrument: K42 %2,  S/N:0417");
    EXPECT_EQ(Chart1.Title->Caption,
              "Data Period From 06-Mar-2004 00:00:00 to 05-Mar-2004 12:00:00");
    EXPECT_EQ(Chart1.Y.Title, "CO² (ppm)");
    EXPECT_EQ(Chart1.Y1.Title, "Temperature (°C)");
    Build(kOverlapWeeks, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.Y1.Title, "Temperature\r\n(dotted plot) (°C)");
}

TEST_F(BuiltPlot, AxisLabelsTakeTheColoursOfTheirCurvesOrTheirOwn) {
    constexpr ColorValue kOwn{0x123456};
    Store.Values["AxesLblClr"] = "&H123456";
    Build(kContinuous, {{k5March2004, 1, 1}});
    EXPECT_TRUE(Chart1.X.Color == kOwn && Chart1.Y.Color == At(0).Color);
    EXPECT_TRUE(Chart1.Y1.Color == At(1).Color && At(1).Color == Color(2));
    Build(kOverlapDays, {});
    EXPECT_EQ(Chart1.Y1.Color, Color(1));
    Store.Values["UseLblColors"] = "NO";
    Build(kContinuous, {});
    EXPECT_EQ(Chart1.Y1.Color, kOwn);
}

TEST_F(BuiltPlot, ReadoutsOfTheThreeLayouts) {
    PointSelection selection{{Chart1, Plot, Data, Unit, Locale, Texts1}};
    Data.InstrumentGas = "CO\xB2";
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
        selection.PointSelected(point);
        EXPECT_EQ(Chart1.Readout, readout);
    }
}

TEST_F(BuiltPlot, OnlyAnotherSelectionIsNewsAndNoneWhileSuppressed) {
    PointSelection selection{{Chart1, Plot, Data, Unit, Locale, Texts1}};
    int changes = 0;
    selection.OnChange([&] { ++changes; });
    Build(kContinuous, {{k5March2004, 1, 20}, {k5March2004 + 1, 1, 20}});
    {
        const PointSelection::Suppression outer(selection);
        { const PointSelection::Suppression inner(selection); }
        selection.PointSelected({0, 0});
        EXPECT_FALSE(selection.Current().has_value());
    }
    selection.PointSelected({0, 0});
    Chart1.Readout.clear();
    selection.PointSelected({0, 0});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Chart1.Readout, "05-Mar-2004 00:00:00, =1 ppm") << "refreshed";
    selection.PointSelected({0, 1});
    selection.Forget();
    selection.Forget();
    EXPECT_EQ(changes, 3);
}

TEST_F(BuiltPlot, EveryPointIsItsReadingAndEveryReadingItsPoint) {
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
            const Curve& at = At(curve);
            for (std::size_t point = 0; point < at.Y.size(); ++point) {
                const auto reading = places.ReadingOf({curve, point});
                ASSERT_EQ(reading, static_cast<std::size_t>(at.Y[point]));
                shown[*reading] = true;
                const ChartPoint back = places.PlaceOf(*reading, at.Axis).value();
                EXPECT_EQ(At(back.Curve).Axis, at.Axis);
                EXPECT_EQ(At(back.Curve).Y[back.Point], at.Y[point]);
            }
            EXPECT_EQ(places.ReadingOf({curve, at.Y.size()}), std::nullopt);
        }
        for (std::size_t i = 0; i < readings.size(); ++i) {
            EXPECT_EQ(places.PlaceOf(i, ChartAxis::kRight).has_value(), shown[i]) << i;
        }
    }
}

TEST_F(BuiltPlot, TheReadingNearestToAMomentLiesWithinTheData) {
    for (const GraphType layout : {kContinuous, kOverlapDays}) {
        Build(layout, {{k5March2004 + 2, 1, 1}, {k5March2004, 1, 1}, {k5March2004 + 5, 1, 1}});
        const ReadingPlaces& places = Plot.Places();
        EXPECT_EQ(places.NearestReading(k5March2004), 1U);
        EXPECT_EQ(places.NearestReading(k5March2004 + 3.4), 0U);
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
