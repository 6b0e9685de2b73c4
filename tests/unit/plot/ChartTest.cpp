#include <gtest/gtest.h>

#include <limits>

#include "plot/Chart.h"
#include "plot/PictureFormat.h"

namespace brask {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Chart, OneEndOfAnAxisNeverPassesTheOther) {
    ChartAxisScale axis;
    axis.SetRange(5000, 5);
    EXPECT_EQ(axis.Range(), (AxisRange{5000, 5})) << "both ends together, in any order";
    axis.SetRange(1, 3);
    EXPECT_TRUE(axis.SetMinimum(3));
    EXPECT_TRUE(axis.SetMaximum(3));
    EXPECT_FALSE(axis.SetMinimum(3.1));
    EXPECT_FALSE(axis.SetMaximum(2.9));
    for (const double odd : {kInfinity, -kInfinity, kNaN}) {
        EXPECT_FALSE(axis.SetMinimum(odd));
        EXPECT_FALSE(axis.SetMaximum(odd));
    }
    EXPECT_EQ(axis.Range(), (AxisRange{3, 3}));
}

TEST(Chart, NamesTellTemperatureCurvesAndPeriods) {
    const struct {
        const char* Name;
        bool Temperature;
        const char* Period;
    } cases[] = {{"05-Mar-2004", false, "05-Mar-2004"},
                 {"05-Mar-2004 Temp", true, "05-Mar-2004"},
                 {"05-Mar-2004 tEMP ", true, "05-Mar-2004"},
                 {"Gas", false, "Gas"},
                 {"Temperature", true, ""},
                 {" a tem Temp temp", true, "a tem"}};
    for (const auto& one : cases) {
        EXPECT_EQ(IsTemperatureCurve(one.Name), one.Temperature) << one.Name;
        EXPECT_EQ(PeriodName(one.Name), one.Period) << one.Name;
    }
}

TEST(Chart, ClearingLeavesBackgroundAndReadout) {
    Chart chart;
    chart.AddCurve({});
    chart.X.SetRange(7, 9);
    chart.Y1.Title = "Temperature";
    chart.Labels.DateFormat = "%d";
    chart.Title = TitleBlock();
    chart.Background.PictureFile = "a.png";
    chart.Readout = "readout";
    chart.Clear();
    EXPECT_TRUE(chart.Curves().empty());
    EXPECT_EQ(chart.X.Range(), AxisRange());
    EXPECT_EQ(chart.Y1.Title + chart.Labels.DateFormat, "");
    EXPECT_FALSE(chart.Title);
    EXPECT_EQ(chart.Background.PictureFile + chart.Readout, "a.pngreadout");
}

TEST(PictureFormat, LooksForTheSuffixAnywhere) {
    EXPECT_EQ(PictureFormatOf("a.PNG"), PictureFormat::kPng);
    EXPECT_EQ(PictureFormatOf("a.png.bmp"), PictureFormat::kBmp);
    EXPECT_EQ(PictureFormatOf("/my.Bmp/plot.png"), PictureFormat::kBmp);
    EXPECT_FALSE(PictureFormatOf("png"));
}

}  // namespace
}  // namespace brask
