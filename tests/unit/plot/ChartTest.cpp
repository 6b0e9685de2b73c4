#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "plot/Chart.h"

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
    const std::tuple<const char*, bool, const char*> cases[] = {
        {"05-Mar-2004", false, "05-Mar-2004"},
        {"05-Mar-2004 Temp", true, "05-Mar-2004"},
        {"05-Mar-2004 tEMP ", true, "05-Mar-2004"},
        {"Gas", false, "Gas"},
        {"Temperature", true, ""},
        {" a tem Temp temp", true, "a tem"}};
    for (const auto& [name, temperature, period] : cases) {
        EXPECT_EQ(IsTemperatureCurve(name), temperature) << name;
        EXPECT_EQ(PeriodName(name), period) << name;
    }
}

}  // namespace
}  // namespace brask
