#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/PlotColors.h"
#include "data/ProgramOptions.h"
#include "data/RecentFiles.h"
#include "data/Settings.h"
#include "data/SettingsTable.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

using testing::ElementsAre;

class SettingsTest : public testing::Test {
  protected:
    ProgramOptions Load() { return LoadProgramOptions(settings_, user_, EnglishTexts()); }

    MemorySettingsStore known_;
    MemorySettingsStore own_;
    FixedUserLocale locale_;
    std::vector<std::string> failed_;
    Settings settings_{known_, own_, locale_,
                       [this](const std::string& key, const std::string& reason) {
                           failed_.push_back(key + ": " + reason);
                       }};
    ScriptedUserInterface user_;
};

TEST(ColorValue, TextsOfColours) {
    const std::pair<const char*, std::uint32_t> cases[] = {{"&HFF00", 0x00FF00},
                                                           {"&HFFFF", 0x00FFFF},
                                                           {"&H0", 0},
                                                           {"&h00ff00", 0xFF00},
                                                           {"00-FF-00", 0x00FF00},
                                                           {"1-2-3", 0x030201},
                                                           {"00-FF", 0},
                                                           {"1-2-3-4", 0},
                                                           {"12345-0-0", 0x45},
                                                           {"--", 0},
                                                           {"zz-00-00", 0},
                                                           {"255", 255},
                                                           {"255.6", 256},
                                                           {"1E3", 1000},
                                                           {"99999999999", 0},
                                                           {"", 0},
                                                           {"red", 0},
                                                           {"&H", 0},
                                                           {"&HXY", 0},
                                                           {"&HFF00-", 0},
                                                           {"x&HFF", 0},
                                                           {"&HFFFFFFFFFF", 0},
                                                           {"-5", 0},
                                                           {"&H+1", 0}};
    for (const auto& [text, number] : cases) EXPECT_EQ(ParseColor(text).Number, number) << text;
    EXPECT_EQ(ColorToHexText({0x00FF0A}), "&h00FF0A");
    EXPECT_EQ(ColorToRgbText({0x0102FF}), "FF-02-01");
    EXPECT_EQ(DefaultColorText({0x00FF00}), "&HFF00");
    EXPECT_EQ(DefaultColorText(kBlack), "&H0");
    for (std::uint32_t number = 0; number <= 0xFFFFFF; number += 65521) {
        const ColorValue color{number};
        EXPECT_EQ(ParseColor(ColorToHexText(color)), color);
        EXPECT_EQ(ParseColor(ColorToRgbText(color)), color);
        EXPECT_EQ(ParseColor(DefaultColorText(color)), color);
    }
}

TEST_F(SettingsTest, OptionsAreReadInTheirOrder) {
    const ProgramOptions options = Load();
    std::vector<std::string> first(known_.Asked.begin(), known_.Asked.begin() + 21);
    EXPECT_THAT(
        first, ElementsAre("DisplayTimeFrom", "DisplayTimeTo", "NotifyUserOfNewFiles",
                           "DisplayTemperatureUnits", "GraphType", "StartWeekOn", "StartViewDayOn",
                           "UseDataMarkers", "ScaleYAxisOnZoom", "AutoClear", "DataAccessIsGlobal",
                           "OpenFormFullScreen", "BackgroundColor", "BackgroundGraphClr",
                           "TitleClr", "AxesLblClr", "UseLblColors", "UserSpecifiedDirectoryActive",
                           "UserSpecDir", "CursorType", "ScalePrint"));
    EXPECT_FALSE(testing::Value(known_.Asked, testing::Contains("DisplayPeriod")));

    EXPECT_EQ(options.DisplayTimeFrom, "00:00");
    EXPECT_EQ(options.DisplayTimeTo, "23:59");
    EXPECT_FALSE(options.Fahrenheit);
    EXPECT_EQ(options.CursorStyle, 9);
    EXPECT_TRUE(options.UseDataMarkers);
    EXPECT_FALSE(options.UseToleranceCurve);
    EXPECT_EQ(options.BackgroundGraphClr, kWhite);
    EXPECT_EQ(options.UpperToleranceLimit, 1000);
    EXPECT_TRUE(user_.Shown.empty());
}

TEST_F(SettingsTest, AnOddFlagFallsToTheSideOfItsTest) {
    for (const SettingRow& row : KnownSettings()) {
        if (row.Form == SettingForm::kFlag) known_.Values[row.Key] = "yes";
    }
    const ProgramOptions odd = Load();
    EXPECT_FALSE(odd.NotifyUserOfNewFiles || odd.UseDataMarkers || odd.ScaleYAxisOnZoom ||
                 odd.AutoClear || odd.DataAccessIsGlobal || odd.OpenFormFullScreen ||
                 odd.UseLblColors || odd.ScalePrint || odd.UseToleranceCurve);
    EXPECT_TRUE(odd.UserDirectoryActive) << "here NO is tested";
    EXPECT_TRUE(settings_.IsNotNo("AutoClear")) << "when a download ends";
}

TEST_F(SettingsTest, OddNumbersAndIndexes) {
    known_.Values = {{"GraphType", "7"},
                     {"StartWeekOn", "-3"},
                     {"StartViewDayOn", "2.9x"},
                     {"CursorType", "9"},
                     {"UpperToleranceLimit", "x"},
                     {"AxesLblClr", "blue"},
                     {"DisplayTemperatureUnits", "-0.5"}};
    const ProgramOptions options = Load();
    EXPECT_EQ(options.GraphType, 2);
    EXPECT_EQ(options.StartWeekOn, 0);
    EXPECT_EQ(options.StartViewDayOn, 2);
    EXPECT_EQ(options.UpperToleranceLimit, 0);
    EXPECT_TRUE(options.Fahrenheit) << "any number but 0";
    EXPECT_EQ(options.AxesLblClr, kBlack);
    EXPECT_FALSE(options.CursorStyle);
    EXPECT_THAT(user_.ShownTexts(), ElementsAre("Cursor Type Not Mapped SetCursorType(9)"));
    EXPECT_EQ(known_.Values.size(), 7U) << "stored texts stay as they are";
    const int styles[] = {1, 9, 3, 4, 5, 10, 8};
    for (int i = 0; i < 7; ++i) EXPECT_EQ(CursorStyleOf(i), styles[i]);
    for (const double index : {-1.0, 7.0, 0.5, 1e300}) EXPECT_FALSE(CursorStyleOf(index));
}

TEST_F(SettingsTest, SavingTrimsAndReportsQuietly) {
    settings_.Save("DisplayTimeFrom", "  06:30 ");
    settings_.Save("EndViewDayOn", "   ");
    settings_.Save("HandheldAddress", "dir:/x");
    EXPECT_EQ(known_.Values["DisplayTimeFrom"], "06:30");
    EXPECT_EQ(known_.Values["EndViewDayOn"], "");
    EXPECT_EQ(own_.Values["HandheldAddress"], "dir:/x");
    EXPECT_FALSE(known_.Values.contains("HandheldAddress"));
    known_.Full = true;
    settings_.SaveFlag("AutoClear", true);
    EXPECT_EQ(settings_.Get("AutoClear"), "NO");
    EXPECT_THAT(failed_, ElementsAre("AutoClear: No space left on device"));
}

TEST_F(SettingsTest, KnownKeysAndTheirDefaults) {
    EXPECT_EQ(settings_.Get("EndViewDayOn"), "Saturday");
    known_.Values["StartWeekOn"] = "1";
    EXPECT_EQ(settings_.Get("EndViewDayOn"), "Sunday");
    for (const char* key : {"PlotLineColor1", "PlotLineColor12", "ScalePrint", "RecentFile10"}) {
        EXPECT_TRUE(Settings::IsKnown(key)) << key;
    }
    for (const char* key : {"", "PlotLineColor", "PlotLineColor0", "PlotLineColor01",
                            "PlotLineColor1x", "scaleprint", "PtrBin", "PlotLineColor12345678"}) {
        EXPECT_FALSE(Settings::IsKnown(key)) << key;
    }
    known_.Values["NumPlotColorsDefined"] = "2";
    EXPECT_THAT(settings_.Keys(),
                testing::IsSupersetOf({"NumPlotColorsDefined", "PlotLineColor1", "PlotLineColor2",
                                       "BackgroundColor", "InstrumentAddress"}));
    EXPECT_EQ(settings_.Keys().size(), KnownSettings().size() + OwnSettings().size() + 2);
}

TEST_F(SettingsTest, TheColourTableAtFirstStart) {
    PlotColors::Initialise(settings_);
    const std::map<std::string, std::string> table = {
        {"NumPlotColorsDefined", "9"},  {"PlotLineColor1", "&HFF00"},
        {"PlotLineColor2", "&HFF0000"}, {"PlotLineColor3", "&HFFFF"},
        {"PlotLineColor4", "&HFFFF00"}, {"PlotLineColor5", "&H008080"},
        {"PlotLineColor6", "&HFF00FF"}, {"PlotLineColor7", "&H00C000"},
        {"PlotLineColor8", "&H800000"}, {"PlotLineColor9", "&H800080"}};
    EXPECT_EQ(known_.Values, table);
    PlotColors colors;
    colors.Load(settings_);
    EXPECT_EQ(colors.CurveColor(1).Number, 0x00FF00U);
    EXPECT_EQ(colors.CurveColor(9).Number, 0x800080U);
    EXPECT_EQ(colors.CurveColor(10), colors.CurveColor(1)) << "from the start again";
}

TEST_F(SettingsTest, StoredLengthsOfTheColourTable) {
    struct Case {
        const char* Stored;
        bool Rewritten;
        int Count;
    };
    const Case cases[] = {{"0", true, 9},   {"abc", true, 9},
                          {"-5", false, 9}, {"0.5", false, 9},
                          {"2", false, 2},  {"1e9", false, PlotColors::kLongest}};
    for (const Case& test : cases) {
        known_.Values = {{"NumPlotColorsDefined", test.Stored}, {"PlotLineColor1", "00-00-FF"}};
        PlotColors::Initialise(settings_);
        EXPECT_EQ(known_.Values["NumPlotColorsDefined"] == "9", test.Rewritten) << test.Stored;
        EXPECT_EQ(known_.Values["PlotLineColor1"] == "&HFF00", test.Rewritten) << test.Stored;
        PlotColors colors;
        colors.Load(settings_);
        EXPECT_EQ(colors.Count(), test.Count) << test.Stored;
    }
    PlotColors::SaveEntry(settings_, 3, "&&&h00FF00");
    EXPECT_EQ(known_.Values["PlotLineColor3"], "&h00FF00");
}

TEST_F(SettingsTest, RecentFilesAreTenNewestFirst) {
    RecentFiles recent(settings_);
    for (int i = 1; i <= 12; ++i) recent.Add("/data/" + std::to_string(i) + ".csv");
    recent.Add("/data/7.csv");
    recent.Remove("/data/9.csv");
    EXPECT_THAT(
        RecentFiles(settings_).List(),
        ElementsAre("/data/7.csv", "/data/12.csv", "/data/11.csv", "/data/10.csv", "/data/8.csv",
                    "/data/6.csv", "/data/5.csv", "/data/4.csv", "/data/3.csv"));
    EXPECT_TRUE(known_.Values.empty());
    recent.Clear();
    EXPECT_TRUE(recent.List().empty());
}

}  // namespace
}  // namespace brask
