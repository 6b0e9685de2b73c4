// Moving through the plot by mouse, wheel, touch pad and keys.
#include <tuple>

#include "PlotWindow.h"

namespace brask {
namespace {

using PlotHands = PlotWindow;

TEST_F(PlotHands, AClickSelectsTheNearestReadingOfTheActiveAxisAndEveryLineSaysSo) {
    const QPoint gas = PixelOf({0, 13});
    Click(gas + QPoint(4, -3));
    EXPECT_EQ(Plot.Selected, (ChartPoint{0, 13}));
    EXPECT_EQ(Plot.Readout, "02-Jan-2003 15:00:00, CO=13 ppm");
    EXPECT_EQ(Text("lblStatusSelected"), "02-Jan-2003 15:00:00 (Gas: 13 ppm)  Temp: 27 °C");
    EXPECT_EQ(Text("lblStatusRange"), "01-Jan-2003 00:00:00 - 03-Jan-2003 21:00:00");
    EXPECT_EQ(FromQt(Drawn().accessibleDescription()),
              Plot.Readout + ". Visible range: " + Text("lblStatusRange"));
    Do("Y");
    Click(gas);
    EXPECT_EQ(Plot.Selected->Curve, 1U) << "the gas is nearer, but not on the active axis";
    Do("mnuRefresh");
    EXPECT_EQ(Plot.Readout + Text("lblStatusSelected"), "No Data Point Selected");
}

TEST_F(PlotHands, ADragShowsWhatItWentOver) {
    const std::tuple<QPointF, QPointF, Qt::KeyboardModifiers, const char*> rows[] = {
        {{20, 30}, {60, 80}, {}, "X20..60 Y20..70"},
        {{60, 80}, {20, 30}, Qt::ShiftModifier, "X20..60 Y20..70 T20..70"},
        {{20, 50}, {60, 50}, {}, "X20..60"},
        {{50, 30}, {50, 80}, {}, " Y20..70"},
        {{50, 30}, {120, 80}, {}, "X50..100 Y20..70"},  // ends beside the axes
        {{50, 50}, {50.3, 50.3}, {}, ""}};              // a trembling hand
    for (const auto& [from, to, modifiers, shown] : rows) {
        Drag(At(from.x(), from.y()), At(to.x(), to.y()), modifiers);
        EXPECT_EQ(Shown(), shown);
        EXPECT_EQ(Item("mnuCanZoomOut")->isEnabled(), !Shown().empty());
        DoAll({{"Ctrl+-", ""}});
    }
}

TEST_F(PlotHands, TheWheelScalesAboutThePointerAndOnAnAxisThatAxisAlone) {
    const std::tuple<const char*, QPointF, const char*> rows[] = {
        {"NO", {50, 50}, "X10..90"},   {"YES", {50, 50}, "X10..90 Y10..90 T10..90"},
        {"NO", {0, 50}, "X0..80"},     {"YES", {-3, 50}, " Y10..90"},
        {"NO", {103, 0}, " T20..100"}, {"YES", {50, 104}, "X10..90"}};
    for (const auto& [scalesY, place, shown] : rows) {
        Store.Values["ScaleYAxisOnZoom"] = scalesY;
        Wheel(At(place.x(), place.y()), 1);
        EXPECT_EQ(Shown(), shown);
        Do("mnuRestoreOriginalGraphScale");
    }
}

TEST_F(PlotHands, ABurstOfTheWheelIsOneZoomThatCanBeTakenBack) {
    Wheel(At(50, 50), 3);
    EXPECT_EQ(Shown(), "X24..76");
    Rest();
    Wheel(At(50, 50), 1);
    DoAll({{"Ctrl+-", "X24..76"}});
    // at once, but no longer the same burst
    Wheel(At(50, 50), 1);
    DoAll({{"Ctrl+-", "X24..76"}, {"Ctrl+-", ""}});
    // the first step has no effect that the second could go on from
    Wheel(At(50, 50), -1);
    Wheel(At(50, 50), 1);
    DoAll({{"Ctrl+-", ""}});
}

TEST_F(PlotHands, PanningMovesTheCurvesWithTheHandAndIsNoZoom) {
    const QPoint from = At(50, 50);
    const QPoint to = At(60, 70);
    const auto touch = [&](Qt::ScrollPhase phase) {
        const QPoint pixels = phase == Qt::ScrollUpdate ? to - from : QPoint();
        QWheelEvent event(from, Drawn().mapToGlobal(from), pixels, {}, {}, {}, phase, false);
        QCoreApplication::sendEvent(&Drawn(), &event);
    };
    const std::function<void()> ways[] = {
        [&] { Drag(from, to, {}, Qt::MiddleButton); },
        [&] {
            QTest::keyPress(&Drawn(), Qt::Key_Space);
            Drag(from, to);
            QTest::keyRelease(&Drawn(), Qt::Key_Space);
        },
        [&] {
            for (auto step : {Qt::ScrollBegin, Qt::ScrollUpdate, Qt::ScrollEnd}) touch(step);
        }};
    for (const auto& pan : ways) {
        SetView(40, 60);
        pan();
        EXPECT_EQ(Shown(), "X38..58 Y44..64 T44..64");
        EXPECT_FALSE(Item("mnuCanZoomOut")->isEnabled() || Plot.Selected);
    }
    SetView(40, 60);
    Wheel(from, -3, Qt::ShiftModifier);
    EXPECT_EQ(Shown(), "X46..66 Y40..60 T40..60");
    Drag(At(90, 50), At(-200, 50), {}, Qt::MiddleButton);
    EXPECT_EQ(Shown(), "X80..100 Y40..60 T40..60") << "beyond there is nothing more";
}

TEST_F(PlotHands, ADoubleClickRestoresOnAnEmptyPlaceAlone) {
    SetView(20, 80);
    QTest::mouseDClick(&Drawn(), Qt::LeftButton, {}, PixelOf({0, 12}));
    EXPECT_EQ(Shown(), "X20..80 Y20..80 T20..80");
    EXPECT_EQ(Plot.Selected, (ChartPoint{0, 12}));
    Wheel(At(50, 50), 1);
    QTest::mouseDClick(&Drawn(), Qt::LeftButton, {}, At(90, 90));
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Item("mnuCanZoomOut")->isEnabled()) << "nothing is left to go back to";
}

TEST_F(PlotHands, EscapeDropsARectangleThenLeavesAZoomThenIsForOthers) {
    Wheel(At(50, 50), 1);
    QTest::mousePress(&Drawn(), Qt::LeftButton, {}, At(20, 20));
    QTest::mouseMove(&Drawn(), At(60, 60));
    EXPECT_TRUE(Plot.Rectangle);
    Do("Escape");
    QTest::mouseRelease(&Drawn(), Qt::LeftButton, {}, At(60, 60));
    EXPECT_FALSE(Plot.Rectangle || Plot.Selected)
        << "the release belongs to the drag that was given up";
    EXPECT_EQ(Shown(), "X10..90");
    DoAll({{"Escape", ""}});
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, {});
    QCoreApplication::sendEvent(&Drawn(), &event);
    EXPECT_FALSE(event.isAccepted());
}

TEST_F(PlotHands, KeysMoveTheCursorFromReadingToReading) {
    const std::pair<const char*, std::size_t> rows[] = {
        // the first key only shows it, in the middle; up and down go to the extremes in view
        {"Right", 11}, {"Right", 12}, {"Left", 11},       {"Home", 0}, {"Left", 0}, {"End", 23},
        {"Right", 23}, {"Left", 22},  {"Shift+Left", 20}, {"Down", 0}, {"Up", 23}};
    for (const auto& row : rows) {
        Do(row.first);
        EXPECT_EQ(Plot.Selected, (ChartPoint{0, row.second})) << row.first;
    }
    SetView(20, 40);
    DoAll({{"M|Left", "X18..38 Y20..40 T20..40"}});
}

TEST_F(PlotHands, TheKeyboardDrawsAZoomRectangle) {
    DoAll({{"Z|Return", "X25..75 Y25..75"},
           {"Ctrl+0|Z|Right|Shift+Right|Enter", "X25..79 Y25..75"},
           {"Ctrl+0|Z|Up|Shift+Down|Shift+Return", "X25..75 Y29..75 T29..75"},
           {"Ctrl+0|Z|Left|Escape", ""}});
    EXPECT_FALSE(Plot.Rectangle);
}

}  // namespace
}  // namespace brask
