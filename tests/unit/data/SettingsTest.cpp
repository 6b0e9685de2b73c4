#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "Surroundings.h"
#include "data/PlotColors.h"
#include "data/ProgramOptions.h"
#include "data/RecentFiles.h"
#include "data/SettingsTable.h"

namespace brask {
namespace {

using testing::ElementsAre;

class SettingsTest : public testing::Test, protected Surroundings {
  protected:
    ProgramOptions Load() { return LoadProgramOptions(Options, User, Words); }
};

TEST(ColorValue, TextsOfColours) {
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"&HFF00", 0x00FF00}, {"&h00ff00", 0xFF00}, {"00-FF-00", 0xFF00}, {"1-2-3", 0x030201},
        {"12345-0-0", 0x45},  {"255", 255},         {"255.6", 256},       {"1E3", 1000}};
    for (const auto& [text, number] : cases) EXPECT_EQ(ParseColor(text).Number, number) << text;
    for (const char* none : {"", "red", "99999999999", "00-FF", "1-2-3-4", "--", "zz-00-00", "&H",
                             "&HXY", "&HFF00-", "x&HFF", "-5", "&HFFFFFFFFFF"}) {
        EXPECT_EQ(ParseColor(none), kBlack) << none;
    }
    EXPECT_EQ(ColorToHexText({0x00FF0A}), "&h00FF0A");
    EXPECT_EQ(ColorToRgbText({0x0102FF}), "FF-02-01");
    EXPECT_EQ(DefaultColorText({0x00FF00}), "&HFF00");
}

TEST_F(SettingsTest, OddNumbersIndexesAndFlags) {
    EXPECT_EQ(Load().CursorStyle, 9);
    Known.Values = {{"GraphType", "7"},
                    {"StartWeekOn", "-3"},
                    {"StartViewDayOn", "2.9x"},
                    {"CursorType", "9"},
                    {"AutoClear", "yes"},
                    {"UserSpecifiedDirectoryActive", "no"},
                    {"DisplayTemperatureUnits", "-0.5"}};
    const ProgramOptions options = Load();
    EXPECT_EQ(options.GraphType, 2);
    EXPECT_EQ(options.StartWeekOn, 0);
    EXPECT_EQ(options.StartViewDayOn, 2);
    EXPECT_TRUE(options.Fahrenheit) << "any number but 0";
    EXPECT_FALSE(options.AutoClear) << "YES is tested";
    EXPECT_TRUE(options.UserDirectoryActive) << "here NO is tested";
    EXPECT_FALSE(options.CursorStyle);
    for (const double index : {-1.0, 7.0, 0.5, 1e300}) EXPECT_FALSE(CursorStyleOf(index));
}

TEST_F(SettingsTest, SavingTrimsAndReportsQuietly) {
    Options.Save("DisplayTimeFrom", "  06:30 ");
    Options.Save("HandheldAddress", "dir:/x");
    EXPECT_EQ(Known.Values["DisplayTimeFrom"], "06:30");
    EXPECT_EQ(Own.Values["HandheldAddress"], "dir:/x");
    Known.Full = true;
    Options.SaveFlag("AutoClear", true);
    EXPECT_EQ(Options.Get("AutoClear"), "NO");
    EXPECT_THAT(Failed, ElementsAre("AutoClear: No space left on device"));
}

TEST_F(SettingsTest, KnownKeysAndADefaultThatFollowsAnotherKey) {
    EXPECT_EQ(Options.Get("EndViewDayOn"), "Saturday");
    Known.Values["StartWeekOn"] = "1";
    EXPECT_EQ(Options.Get("EndViewDayOn"), "Sunday");
    for (const char* key : {"PlotLineColor", "PlotLineColor01", "PlotLineColor1x", "scaleprint",
                            "PlotLineColor12345678"}) {
        EXPECT_FALSE(Settings::IsKnown(key)) << key;
    }
}

TEST_F(SettingsTest, StoredLengthsOfTheColourTable) {
    const std::tuple<const char*, bool, int> cases[] = {
        {"0", true, 9},    {"abc", true, 9}, {"-5", false, 9},
        {"0.5", false, 9}, {"2", false, 2},  {"1e9", false, PlotColors::kLongest}};
    for (const auto& [stored, rewritten, count] : cases) {
        Known.Values = {{"NumPlotColorsDefined", stored}, {"PlotLineColor1", "00-00-FF"}};
        PlotColors::Initialise(Options);
        EXPECT_EQ(Known.Values["PlotLineColor1"] == "&HFF00", rewritten) << stored;
        PlotColors colors;
        colors.Load(Options);
        EXPECT_EQ(colors.Count(), count) << stored;
        EXPECT_EQ(colors.CurveColor(count + 1), colors.CurveColor(1)) << "from the start again";
    }
    PlotColors::SaveEntry(Options, 3, "&&&h00FF00");
    EXPECT_EQ(Known.Values["PlotLineColor3"], "&h00FF00");
}

TEST_F(SettingsTest, RecentFilesAreTenNewestFirst) {
    RecentFiles recent(Options);
    for (int i = 1; i <= 12; ++i) recent.Add("/" + std::to_string(i));
    recent.Add("/7");
    recent.Remove("/9");
    EXPECT_THAT(RecentFiles(Options).List(),
                ElementsAre("/7", "/12", "/11", "/10", "/8", "/6", "/5", "/4", "/3"));
    EXPECT_TRUE(Known.Values.empty());
}

}  // namespace
}  // namespace brask
