#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "data/DateTime.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "plot/PlotBuilder.h"

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

class Builder : public testing::Test {
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
};

std::vector<double> Values(std::span<const double> values) {
    return {values.begin(), values.end()};
}

TEST_F(Builder, ContinuousIsOneCurveOfEachOverAllReadings) {
    Build(kContinuous,
          {{k5March2004, 1, 20}, {k5March2004 + 2, 7.5, 25}, {k5March2004 + 1, 3, 15}});
    EXPECT_EQ(Names(), "Gas|Temperature|");
    EXPECT_EQ(At(0).X.data(), Data.ReadingTime.data()) << "shared, not copied";
    EXPECT_EQ(Values(At(1).Y), (std::vector<double>{20, 25, 15})) << "in the order of the file";
    EXPECT_EQ(At(0).Axis, ChartAxis::kLeft);
    EXPECT_EQ(At(1).Axis, ChartAxis::kRight);
    EXPECT_EQ(At(0).Color, Color(1));
    EXPECT_EQ(At(1).Color, Color(2));
    EXPECT_EQ(Plot.GasColor(), Color(1));
    EXPECT_EQ(Plot.TemperatureColor(), Color(2));
    EXPECT_EQ(At(1).Line, LineStyle::kSolid);
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{k5March2004, k5March2004 + 2}));
    EXPECT_EQ(Chart1.Y.Range(), (AxisRange{-0.1, 12.5}));
    EXPECT_EQ(Chart1.Y1.Range(), (AxisRange{10, 30}));
    EXPECT_EQ(Chart1.Labels.DateFormat, "%d-%b-%Y\n%X");
    EXPECT_TRUE(Plot.PeriodStarts().empty());
}

TEST_F(Builder, AxesStartFromTheirStatedExtremes) {
    const struct {
        const char* What;
        std::vector<Reading> Readings;
        AxisRange Gas;
        AxisRange Temperature;
    } cases[] = {
        {"nothing", {}, {-0.1, 5}, {4995, 5}},
        {"gas at or below 0", {{38051, -3, 20}, {38052, 0, 20}}, {-0.1, 5}, {15, 25}},
        {"all below freezing", {{38051, 1, -20}, {38052, 1, -10}}, {-0.1, 6}, {-25, 5}},
        {"hotter than anything", {{38051, 1, 6000}}, {-0.1, 6}, {4995, 6005}},
        {"overflowed conversion", {{38051, 1, 20}, {38052, 1, kInfinity}}, {-0.1, 6}, {15, 25}},
        {"nothing finite", {{38051, 1, -kInfinity}}, {-0.1, 6}, {4995, 5}},
    };
    for (const auto& one : cases) {
        for (const GraphType layout : {kContinuous, kOverlapDays, kOverlapWeeks}) {
            Build(layout, one.Readings);
            EXPECT_EQ(Chart1.Y.Range(), one.Gas) << one.What;
            EXPECT_EQ(Chart1.Y1.Range(), one.Temperature) << one.What;
            EXPECT_EQ(Chart1.Title.has_value(), !one.Readings.empty()) << one.What;
            EXPECT_EQ(Chart1.Curves().empty(), one.Readings.empty()) << one.What;
        }
    }
}

TEST_F(Builder, TimeAxisOfTheContinuousLayout) {
    Build(kContinuous, {});
    EXPECT_EQ(FormatReadingTime(Chart1.X.Range().Minimum), "10-Mar-2003 08:00:00");
    EXPECT_EQ(FormatReadingTime(Chart1.X.Range().Maximum), "11-Mar-2003 08:00:00");
    Build(kContinuous, {{30000, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{30000, kEarliestDisplayDate}));
    Build(kContinuous, {{kLatestDisplayDate + 9, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{kLatestDisplayDate, kLatestDisplayDate + 9}));
}

TEST_F(Builder, DaysLieOverOneAnother) {
    Store.Values["NumPlotColorsDefined"] = "2";
    Store.Values["PlotLineColor1"] = "&HFF";
    Store.Values["PlotLineColor2"] = "&HFF00";
    Build(kOverlapDays, {{k5March2004 + 0.25, 1, 20},
                         {k5March2004 + 0.5, 2, 21},
                         {k5March2004 + 1, 9, 30},
                         {k5March2004 + 2.75, 3, 10}});
    EXPECT_EQ(Names(),
              "05-Mar-2004|05-Mar-2004 Temp|06-Mar-2004|06-Mar-2004 Temp|"
              "07-Mar-2004|07-Mar-2004 Temp|");
    EXPECT_EQ(Values(At(0).X), (std::vector<double>{6, 12}));
    EXPECT_EQ(Values(At(5).X), (std::vector<double>{18}));
    EXPECT_EQ(Values(At(1).Y), (std::vector<double>{20, 21}));
    EXPECT_EQ(At(1).Line, LineStyle::kDotted);
    EXPECT_EQ(At(1).Axis, ChartAxis::kRight);
    EXPECT_EQ(At(1).Color, ColorValue{0xFF});
    EXPECT_EQ(At(2).Color, ColorValue{0xFF00});
    EXPECT_EQ(At(4).Color, At(0).Color) << "colours repeat";
    EXPECT_EQ(At(4).Marker.Color, At(4).Color);
    EXPECT_EQ(Plot.PeriodStarts(), (std::vector<std::int32_t>{0, 2, 3}));
    EXPECT_EQ(Chart1.Y.Range(), (AxisRange{-0.1, 14}));
    EXPECT_EQ(Chart1.Y1.Range(), (AxisRange{5, 35}));
}

TEST_F(Builder, DayInSeveralRunsIsOneCurve) {
    Build(kOverlapDays, {{k5March2004 + 0.25, 1, 20},
                         {k5March2004 + 1, 2, 30},
                         {k5March2004 + 0.5, 3, 21},
                         {k5March2004 + 1.5, 4, 31}});
    // two readings taken, so the second period begins at the third: again the first day
    EXPECT_EQ(Names(),
              "05-Mar-2004|05-Mar-2004 Temp|05-Mar-2004|05-Mar-2004 Temp|"
              "06-Mar-2004|06-Mar-2004 Temp|");
    EXPECT_EQ(Values(At(0).X), (std::vector<double>{6, 12}));
    EXPECT_EQ(Values(At(0).Y), (std::vector<double>{1, 3}));
    EXPECT_EQ(Values(At(1).Y), (std::vector<double>{20, 21}));
    EXPECT_EQ(At(0).PyramidY->Whole().Maximum, 3);
}

TEST_F(Builder, StyleFollowsMarkersAndNumberOfReadings) {
    for (const char* marked : {"NO", "YES"}) {
        Store.Values["UseDataMarkers"] = marked;
        const bool yes = marked == std::string("YES");
        Build(kOverlapDays,
              {{k5March2004, 1, 1}, {k5March2004 + 1, 1, 1}, {k5March2004 + 1.5, 1, 1}});
        EXPECT_EQ(At(1).Style, yes ? CurveStyle::kLineWithMarkers : CurveStyle::kPoint);
        EXPECT_EQ(At(2).Style, yes ? CurveStyle::kLineWithMarkers : CurveStyle::kLine);
    }
}

TEST_F(Builder, HoursAreLabelledAtEvenOnes) {
    Build(kOverlapDays, {});
    const auto& labels = Chart1.Labels.Custom;
    ASSERT_EQ(labels.size(), 25U);
    for (std::size_t hour = 0; hour <= 24; ++hour) {
        EXPECT_EQ(labels[hour].Position, static_cast<double>(hour));
        EXPECT_EQ(labels[hour].Visible, hour % 2 == 0);
    }
    EXPECT_EQ(labels[0].Text + labels[9].Text + labels[23].Text + labels[24].Text,
              "00:0009:0023:0000:00");
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{0, 24}));
    EXPECT_EQ(Chart1.Labels.DateFormat, "");
}

TEST_F(Builder, WeeksBeginOnTheChosenDay) {
    for (const int start : {0, 1}) {
        Store.Values["StartWeekOn"] = std::to_string(start);
        Build(kOverlapWeeks,
              {{k5March2004, 1, 1}, {k5March2004 + 2, 2, 2}, {k5March2004 + 3, 3, 3}});
        const auto names = Locale.DayNames();
        EXPECT_EQ(Chart1.Labels.Custom.front().Text, names[start == 0 ? 0 : 1]);
        EXPECT_EQ(Chart1.Labels.Custom[6].Text, names[start == 0 ? 6 : 0]);
        EXPECT_EQ(Chart1.X.Range(), (AxisRange{0, 7}));
        EXPECT_EQ(Plot.PeriodStarts().back(), start == 0 ? 1 : 2);
        EXPECT_EQ(At(2).Name, start == 0 ? "07-Mar-2004" : "08-Mar-2004");
    }
    EXPECT_EQ(Store.Values.size(), 2U) << "drawing writes no settings";
}

TEST_F(Builder, TitleSizeFollowsItsLengthInCharacters) {
    const struct {
        std::size_t Length;
        int Points;
    } cases[] = {{35, 15}, {36, 12}, {40, 12}, {41, 10}, {45, 10}, {46, 8},
                 {50, 8},  {51, 6},  {60, 6},  {61, 4},  {300, 4}};
    constexpr std::size_t kFixedPart = 36;  // "VEK Talvex© K42, Instrument: ,  S/N:"
    for (const auto& one : cases) {
        if (one.Length < kFixedPart) continue;
        Data.InstrumentName = std::string(one.Length - kFixedPart, '\xE9');
        Build(kContinuous, {{k5March2004, 1, 1}});
        EXPECT_EQ(Chart1.Title->FontSize, one.Points) << one.Length;
    }
}

TEST_F(Builder, TitlesAreComposedFromTheHeader) {
    Data.InstrumentName = "K42 %2";
    Data.InstrumentSerialNumber = "0417";
    Data.InstrumentGas = "CO\xB2";
    Build(kContinuous, {{k5March2004 + 1, 1, 1}, {k5March2004 + 0.5, 1, 1}});
    EXPECT_EQ(Chart1.Title->Title, "VEK Talvex© K42, Instrument: K42 %2,  S/N:0417");
    EXPECT_EQ(Chart1.Title->Caption,
              "Data Period From 06-Mar-2004 00:00:00 to 05-Mar-2004 12:00:00");
    EXPECT_EQ(Chart1.Title->FontName, "arial");
    EXPECT_EQ(Chart1.Y.Title, "CO² (ppm)");
    EXPECT_EQ(Chart1.Y1.Title, "Temperature (°C)");
    EXPECT_EQ(Chart1.Readout, "No Data Point Selected");
    Build(kOverlapWeeks, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.Y1.Title, "Temperature\r\n(dotted plot) (°C)");
}

TEST_F(Builder, AxisLabelsTakeTheColoursOfTheirCurvesOrTheirOwn) {
    Store.Values["AxesLblClr"] = "&H123456";
    Build(kContinuous, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.X.Color, ColorValue{0x123456});
    EXPECT_EQ(Chart1.Y.Color, Color(1));
    EXPECT_EQ(Chart1.Y1.Color, Color(2));
    Build(kOverlapDays, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.Y1.Color, Color(1));
    Store.Values["UseLblColors"] = "NO";
    Build(kContinuous, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.Y.Color, ColorValue{0x123456});
    EXPECT_EQ(Chart1.Y1.Color, ColorValue{0x123456});
}

TEST_F(Builder, BackgroundPictureOnlyWhenAskedFor) {
    Store.Values["BackgroundImageFile"] = "a.png";
    Build(kContinuous, {});
    EXPECT_EQ(Chart1.Background.PictureFile, "");
    Store.Values["UseBackgroundImage"] = "YES";
    Build(kContinuous, {});
    EXPECT_EQ(Chart1.Background.PictureFile, "a.png");
    EXPECT_TRUE(Chart1.Background.Stretched);
    Store.Values["BackgroundStretch"] = "NO";
    Build(kContinuous, {});
    EXPECT_FALSE(Chart1.Background.Stretched);
}

}  // namespace
}  // namespace brask
