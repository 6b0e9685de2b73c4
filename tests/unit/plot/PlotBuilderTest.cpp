#include <gtest/gtest.h>

#include <limits>

#include "BuiltPlot.h"
#include "data/DateTime.h"

namespace brask {
namespace {

using enum GraphType;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
class Builder : public BuiltPlot {
  protected:
    const Curve& At(std::size_t index) const { return Chart1.Curves()[index]; }
    std::string Names() const {
        std::string names;
        for (const Curve& curve : Chart1.Curves()) names += curve.Name + "|";
        return names;
    }
    ColorValue Color(int period) const { return Options.Colors.CurveColor(period); }
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
    EXPECT_EQ(At(0).Color, Color(1));
    EXPECT_EQ(At(1).Color, Color(2));
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{k5March2004, k5March2004 + 2}));
    EXPECT_EQ(Chart1.Y.Range(), (AxisRange{-0.1, 12.5}));
    EXPECT_EQ(Chart1.Y1.Range(), (AxisRange{10, 30}));
    EXPECT_EQ(Chart1.Labels.DateFormat, "%d-%b-%Y\n%X");
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
        }
    }
}

TEST_F(Builder, TimeAxisOfTheContinuousLayout) {
    Build(kContinuous, {});
    EXPECT_EQ(FormatReadingTime(Chart1.X.Range().Minimum), "10-Mar-2003 08:00:00");
    Build(kContinuous, {{30000, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{30000, kEarliestDisplayDate}));
    Build(kContinuous, {{kLatestDisplayDate + 9, 1, 1}});
    EXPECT_EQ(Chart1.X.Range(), (AxisRange{kLatestDisplayDate, kLatestDisplayDate + 9}));
}

TEST_F(Builder, DaysLieOverOneAnotherAndInSeveralRunsStayOneCurve) {
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
    EXPECT_EQ(At(1).Axis, ChartAxis::kRight);
    EXPECT_EQ(At(1).Color, ColorValue{0xFF});
    EXPECT_EQ(At(2).Color, ColorValue{0xFF00});
    EXPECT_EQ(At(4).Marker.Color, At(0).Color) << "colours repeat";
    EXPECT_EQ(At(0).Style, CurveStyle::kLine);
    EXPECT_EQ(At(5).Style, CurveStyle::kPoint) << "a line needs two readings";
}

TEST_F(Builder, HoursAndDaysAreLabelled) {
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
    EXPECT_EQ(Store.Values.size(), 2U) << "drawing writes no settings";
}

TEST_F(Builder, TitleSizeFollowsItsLengthInCharacters) {
    constexpr std::size_t kFixedPart = 36;  // "VEK Talvex© K42, Instrument: ,  S/N:"
    const std::pair<std::size_t, int> cases[] = {{36, 12}, {40, 12}, {41, 10}, {45, 10}, {46, 8},
                                                 {50, 8},  {51, 6},  {60, 6},  {61, 4}};
    for (const auto& [length, points] : cases) {
        Data.InstrumentName = std::string(length - kFixedPart, '\xE9');
        Build(kContinuous, {{k5March2004, 1, 1}});
        EXPECT_EQ(Chart1.Title->FontSize, points) << length;
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
    EXPECT_EQ(Chart1.Y.Title, "CO² (ppm)");
    EXPECT_EQ(Chart1.Y1.Title, "Temperature (°C)");
    EXPECT_EQ(Chart1.Readout, "No Data Point Selected");
    Build(kOverlapWeeks, {{k5March2004, 1, 1}});
    EXPECT_EQ(Chart1.Y1.Title, "Temperature\r\n(dotted plot) (°C)");
}

TEST_F(Builder, AxisLabelsTakeTheColoursOfTheirCurvesOrTheirOwn) {
    Store.Values["AxesLblClr"] = "&H123456";
    Build(kContinuous, {});
    EXPECT_EQ(Chart1.X.Color, ColorValue{0x123456});
    EXPECT_EQ(Chart1.Y.Color, Color(1));
    EXPECT_EQ(Chart1.Y1.Color, Color(2));
    Build(kOverlapDays, {});
    EXPECT_EQ(Chart1.Y1.Color, Color(1));
    Store.Values["UseLblColors"] = "NO";
    Build(kContinuous, {});
    EXPECT_EQ(Chart1.Y1.Color, ColorValue{0x123456});
}

}  // namespace
}  // namespace brask
