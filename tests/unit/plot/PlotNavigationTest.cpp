// The chart's axes and names; moving through it by its actions and by the program's commands on top
// of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "CurveOf.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"
#include "plot/PlotNavigation.h"

namespace brask {
namespace {

using enum ChartAction;
using enum ChartAxis;
using testing::ElementsAre;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr ViewRecord kWhole{{0, 100}, {0, 10}, {10, 30}};
constexpr ViewRecord kFirst{{20, 60}, {2, 6}, {12, 20}};
constexpr ViewRecord kSecond{{30, 40}, {3, 4}, {14, 15}};
constexpr const char* kNoFurther = "Cannot Zoom Any Further!";

TEST(Chart, OneEndOfAnAxisNeverPassesTheOther) {
    ChartAxisScale axis;
    axis.SetRange(5000, 5);
    EXPECT_EQ(axis.Range(), (AxisRange{5000, 5})) << "both ends together, in any order";
    axis.SetRange(1, 3);
    EXPECT_TRUE(axis.SetMinimum(3) && axis.SetMaximum(3));
    EXPECT_FALSE(axis.SetMinimum(3.1) || axis.SetMaximum(2.9));
    for (const double odd : {kInfinity, -kInfinity, kNaN}) {
        EXPECT_FALSE(axis.SetMinimum(odd) || axis.SetMaximum(odd)) << odd;
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

TEST(ChartAction, EveryCodeHasItsNameAndOthersSayTheCode) {
    const auto name = [](int code) { return ActionName(code, EnglishTexts()); };
    EXPECT_EQ(name(0) + "|" + name(45), "Last Point|Scroll down both y-axes fast");
    EXPECT_EQ(name(46) + "|" + name(-1), "Different executed: 46|Different executed: -1");
}

TEST(ViewStack, KeepsEachViewOnceAndSkipsTheOneThatIsShown) {
    Chart plot;
    plot.Original = kFirst;
    ViewStack stack(plot);
    stack.PushCurrent();
    stack.PushCurrent();
    EXPECT_EQ(stack.Count(), 1U);
    EXPECT_FALSE(stack.CanPop()) << "the view is shown already";
    EXPECT_EQ(stack.Pop(), std::nullopt);
    EXPECT_EQ(stack.Count(), 0U) << "dropped for good";
    for (const ViewRecord& view : {kFirst, kSecond, plot.View()}) stack.Push(view);
    EXPECT_EQ(stack.Pop(), kSecond);
    EXPECT_TRUE(stack.CanPop());
}

TEST(ViewStack, ValueAxesComeBackWithinTheOriginalScale) {
    const std::tuple<AxisRange, AxisRange, AxisRange> cases[] = {
        {{2, 6}, {0, 10}, {2, 6}},      {{-5, 12}, {0, 10}, {0, 10}},
        {{12, 15}, {0, 10}, {0, 10}},   {{-9, -3}, {0, 10}, {0, 10}},
        {{11, 5}, {0, 10}, {0, 5}},     {{6, 2}, {0, 10}, {0, 10}},
        {{10, 30}, {50, 86}, {50, 86}},  // °C, and °F by now
        {{5, 20}, {0, 5}, {5, 5}},      {{10, 30}, {5000, 5}, {5000, 5}},
    };
    for (const auto& [pushed, original, popped] : cases) {
        Chart plot;
        plot.Original = {{0, 1}, original, original};
        ViewStack stack(plot);
        stack.Push({{-500, 500}, pushed, pushed});
        EXPECT_EQ(stack.Pop(), (ViewRecord{{-500, 500}, popped, popped}));
    }
}

class Navigation : public testing::Test {
  protected:
    Navigation() { Rebuild(); }
    // As a rebuild of the plot does, from its start to its end. The highest reading is at X = 90,
    // the third one cannot be drawn, nor can the last.
    void Rebuild() {
        Go.BeforeRebuild();
        std::vector<double> x(101);
        std::vector<double> y(101, 5);
        for (std::size_t i = 0; i < 101; ++i) x[i] = static_cast<double>(i);
        y[90] = 9;
        y[2] = y[100] = kNaN;
        ShowPair(Plot, x, y, y, kWhole);
        Go.AfterRebuild();
    }
    void Press(const std::vector<ChartAction>& keys) {
        for (const ChartAction key : keys) Actions.Execute(key);
    }

    Chart Plot;
    EnglishTexts Words;
    ChartActions Actions{Plot, Words};
    FixedUserLocale Locale;
    MemorySettingsStore Store;
    Settings Options{Store, Store, Locale, [](const auto&, const auto&) {}};
    ScriptedUserInterface User;
    PlotNavigation Go{{Plot, Actions, Options, User, Words}};
};

TEST_F(Navigation, ScrollingMovesTheActiveAxisTheWayItSays) {
    // what the view moves by: against the curves; no key of the window moves one value axis alone
    const std::tuple<ChartAction, ChartAxis, double, double> cases[] = {
        {kScrollUp, kLeft, -0.4, 0},
        {kScrollUpFast, kRight, 0, -4},
        {kScrollDown, kRight, 0, 0.8},
        {kScrollDownFast, kLeft, 2, 0}};
    for (const auto& [action, active, y, y1] : cases) {
        Plot.SetView(kFirst);
        Plot.ActiveAxis = active;
        Actions.Execute(action);
        const ViewRecord moved{{20, 60}, {2 + y, 6 + y}, {12 + y1, 20 + y1}};
        EXPECT_EQ(Plot.View(), moved) << ActionName(static_cast<int>(action), Words);
    }
    EXPECT_FALSE(Go.CanZoomOut()) << "no zooms";
}

TEST_F(Navigation, ScrollingEndsWithTheData) {
    double shownEnd = 0;
    Go.Steps().Hook(RefreshStep::kScrollBar, [&] { shownEnd = Plot.X.Range().Maximum; });
    Plot.X.SetRange(50, 90);
    Actions.Execute(kScrollLeftFast);
    EXPECT_EQ(Plot.X.Range(), (AxisRange{70, 100})) << "the end is set back, the start stays";
    EXPECT_EQ(shownEnd, 100) << "what follows the view knows";
    for (int i = 0; i < 300; ++i) Actions.Execute(kScrollLeft);  // a key held down
    EXPECT_TRUE(IsShowable(Plot.X.Range()));
    const double start = Plot.X.Range().Minimum;
    Actions.Execute(kScrollRight);
    EXPECT_LT(Plot.X.Range().Minimum, start) << "and back again";
    Plot.X.SetRange(150, 190);
    Actions.Execute(kScrollLeft);
    EXPECT_EQ(Plot.X.Range(), (AxisRange{60, 100})) << "back from beyond as well";
}

TEST_F(Navigation, ARectangleStaysWithinTheAxesAndMustHaveASize) {
    Actions.Execute(kEnterKeyboardZoom);  // the middle half, which may not leave the axes
    Actions.ShiftRectangle(-1000, 1000);
    Press({kHeightenRectangle, kLowerRectangle, kWidenRectangle, kExitKeyboardZoomBoth});
    EXPECT_NEAR(Plot.X.Range().Maximum, 52, 1e-9);
    EXPECT_NEAR(Plot.Y1.Range().Maximum, 20, 1e-9);
    Go.Restore();
    Press({kEnterKeyboardZoom, kCancelKeyboardZoom, kExitKeyboardZoom});
    EXPECT_TRUE(User.Shown.empty()) << "nothing was left to zoom to";
    Actions.BeginRectangle({0.5, 0.5});
    Actions.Execute(kExitZoom);
    EXPECT_THAT(User.ShownTexts(),
                ElementsAre("The view cannot be made any smaller.\r\nPlotting Error # 12"));
    EXPECT_EQ(Plot.View(), kWhole);
    EXPECT_FALSE(Go.CanZoomOut());
}

TEST_F(Navigation, TheWheelAndPanningEndWithoutAWord) {
    for (int i = 0; i < 200; ++i) Actions.ZoomAbout({0.25, 0}, 0.5, {}, true);
    EXPECT_TRUE(IsShowable(Plot.X.Range()));
    EXPECT_TRUE(User.Shown.empty()) << "zooming in ends without a word";
    Go.ZoomOut();
    EXPECT_EQ(Plot.View(), kWhole);
    Go.ShowView(kFirst);
    Actions.PanBy(0.5, -100);
    EXPECT_EQ(Plot.View(), (ViewRecord{{40, 80}, {0, 4}, {10, 18}})) << "panning ends there too";
}

TEST_F(Navigation, TheCursorSkipsWhatCannotBeDrawnAndTakesTheViewAlong) {
    const std::pair<std::vector<ChartAction>, std::size_t> cases[] = {
        {{kCursorRight, kCursorRightFast}, 59},  // from the middle, a tenth of those in sight
        {{kLastPoint, kCursorRight}, 99},
        {{kMoveCursor, kToggleAxis, kCursorRight, kCursorRight, kToggleAxis}, 3}};
    for (const auto& [keys, point] : cases) {
        Plot.Selected.reset();
        Press(keys);
        EXPECT_EQ(Plot.Selected, (ChartPoint{0, point})) << keys.size();
    }
    Plot.SetView(kFirst);
    Actions.Execute(kCursorUpFast);  // out of sight
    EXPECT_NEAR(Plot.X.Range().Minimum, 54, 1e-9);
    EXPECT_NEAR(Plot.Y.Range().Maximum, 9.4, 1e-9);
    Actions.Execute(kLastPoint);
    EXPECT_EQ(Plot.X.Range(), (AxisRange{60, 100})) << "not past the end of the data";
    Go.CenterSelected();
    EXPECT_EQ(Plot.X.Range(), (AxisRange{79, 119}));
}

TEST_F(Navigation, AxesThatCannotMoveDoNotKeepTheOthersFromIt) {
    const ViewRecord axes{{38051, 38051}, {0, 10}, {5000, 5}};  // of one reading, hot as nothing is
    const std::vector<ChartAction> moves[] = {{kScrollDownBoth},
                                              {kEnterKeyboardZoom, kExitKeyboardZoomBoth},
                                              {kCursorRight, kCursorUp},
                                              {kAutoscale}};
    for (const auto& keys : moves) {
        ShowPair(Plot, {38051}, {7}, {kNaN}, axes);
        Plot.Y.SetRange(2, 4);
        Press(keys);
        Actions.PanBy(1, 0.01);
        Actions.ZoomAbout({0.5, 0.5}, 0.9, {true, false, true}, false);
        EXPECT_EQ(Plot.View(), (ViewRecord{axes.X, Plot.Y.Range(), axes.Y1}));
        EXPECT_GT(std::abs(Plot.Y.Range().Minimum - 2), 0.1) << &keys - moves;
    }
    Plot.Clear();
    Plot.SetView(axes);
    for (int code = 0; code < 46; ++code) Actions.Execute(static_cast<ChartAction>(code));
    EXPECT_EQ(Plot.View(), axes) << "an empty plot";
    EXPECT_TRUE(User.Shown.empty());
}

TEST_F(Navigation, BothWaysBackLeadThroughTheSameViewsInAnyOrder) {
    for (const int byChart : {0, 1, 2, 3}) {
        const auto back = [&](bool chart) { chart ? Actions.Execute(kZoomOut) : Go.ZoomOut(); };
        EXPECT_TRUE(Go.ShowView(kFirst));
        EXPECT_FALSE(Go.ShowView({{20, kNaN}, {1, 2}, {0, 1}}));
        EXPECT_TRUE(Go.ShowView(kSecond));
        back(byChart % 2 == 1);
        EXPECT_EQ(Plot.View(), kFirst) << byChart;
        back(byChart / 2 == 1);
        EXPECT_EQ(Plot.View(), kWhole) << byChart;
        EXPECT_TRUE(!Go.CanZoomOut() && User.Shown.empty());
        back(true);
        EXPECT_EQ(Plot.View(), kWhole);
        EXPECT_THAT(User.ShownTexts(), ElementsAre(kNoFurther));
        User.Shown.clear();
    }
}

TEST_F(Navigation, TheStackOutlivesRebuildsAndTakesOverWithItsMessage) {
    Go.ShowView(kFirst);
    Rebuild();
    EXPECT_EQ(Plot.View(), kWhole);
    Go.KeepViews();
    Go.ShowView(kSecond);
    Rebuild();
    Go.ZoomOut();
    EXPECT_EQ(Plot.View(), kSecond) << "pushed by the rebuild";
    // clamping makes the ends equal: no reason to keep X from going back
    Go.ShowView({{1, 2}, {5, 9}, {12, 20}});
    Rebuild();
    Plot.Original.Y = {0, 5};
    Actions.Execute(kZoomOut);
    EXPECT_EQ(Plot.View(), (ViewRecord{{1, 2}, {5, 5}, {12, 20}}));
    EXPECT_THAT(User.ShownTexts(), ElementsAre(kNoFurther));
    Go.Restore();
    EXPECT_EQ(Plot.View(), Plot.Original);
    EXPECT_FALSE(Go.CanZoomOut());
}

}  // namespace
}  // namespace brask
