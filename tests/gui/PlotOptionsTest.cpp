// The plot's menu items, toolbar buttons, options and dialog.
#include <QComboBox>
#include <QDialog>

#include "PlotWindow.h"

namespace brask {
namespace {

class PlotOptionControls : public PlotWindow {
  protected:
    QAbstractButton* Set() { return Button("cmdSetDisplayPeriod"); }
    void Press(const char* box, Qt::Key key) { QTest::keyClick(Find<QWidget>(box), key); }
    // Works in the dialog that the menu item opens; ends with it closed.
    void InScales(const std::function<void(QDialog&)>& work) {
        NextModal<QDialog> next([&](QDialog& dialog) {
            work(dialog);
            dialog.reject();
        });
        Do("mnuChangeYScale");
        EXPECT_TRUE(next.Met);
    }
};

TEST_F(PlotOptionControls, MenuToolbarAndKeysMoveTheViewAlike) {
    const std::pair<const char*, const char*> rows[] = {
        {"mnuMoveViewAreaLeft|Move Left|Ctrl+Left", "X38..58 Y40..60 T40..60"},
        {"mnuMoveViewAreaRight|Move Right|Ctrl+Right", "X42..62 Y40..60 T40..60"},
        {"mnuMoveViewAreaUp|Move Up|Ctrl+Up", "X40..60 Y42..62 T42..62"},
        {"mnuMoveViewAreaDown|Move Down|Ctrl+Down", "X40..60 Y38..58 T38..58"},
        {"mnuMoveViewingAreaLeftFast|PgUp", "X30..50 Y40..60 T40..60"},
        {"mnuMoveViewingAreaRightFast|PgDown", "X50..70 Y40..60 T40..60"},
        {"mnuMoveViewingAreaUpFast|Shift+PgUp", "X40..60 Y50..70 T50..70"},
        {"mnuMoveViewingAreaDownFast|Shift+PgDown", "X40..60 Y30..50 T30..50"}};
    for (const auto& row : rows) {
        for (const QString& way : QString::fromLatin1(row.first).split(QLatin1Char('|'))) {
            SetView(40, 60);
            Do(FromQt(way).c_str());
            EXPECT_EQ(Shown(), row.second) << FromQt(way);
        }
    }
}

TEST_F(PlotOptionControls, ZoomsAndWaysBack) {
    DoAll({{"+|Ctrl++", "X38..63"},
           {"-|-", ""},
           {"End|Zoom In", "X75..125"},
           {"Move Left", "X70..100"},  // never past the end of the data
           {"CenterDot", "X85..115 Y32..132"},
           {"RulerArrow", ""}});
    EXPECT_FALSE(Tool("Zoom Out")->isEnabled());
    Do("-");
    EXPECT_EQ(User.ShownTexts(), std::vector<std::string>{"Cannot Zoom Any Further!"});
    Button("chkChangeYScales")->click();
    EXPECT_EQ(Store.Values["ScaleYAxisOnZoom"], "YES");
    DoAll({{"Home|Shift+=", "X-25..25 Y25..75 T25..75"}, {"Zoom Out", ""}});
}

TEST_F(PlotOptionControls, TheAxisCommandNamesTheAxisThatItActivatesNext) {
    bool left = true;
    for (const char* use : {"mnuSwitchActiveYAxis", "SwitchActiveYAxis", "Y"}) {
        Do(use);
        left = !left;
        EXPECT_EQ(Plot.ActiveAxis == ChartAxis::kLeft, left);
        const std::string caption =
            std::string("Set Active Y Axis To ") + (left ? "Temperature" : "Gas");
        EXPECT_EQ(FromQt(Item("mnuSwitchActiveYAxis")->text().remove(QLatin1Char('&'))), caption);
        EXPECT_EQ(FromQt(Tool("SwitchActiveYAxis")->toolTip()), caption);
    }
    Drag(At(20, 30), At(60, 80));
    EXPECT_EQ(Shown(), "X20..60 T20..70");
}

TEST_F(PlotOptionControls, MarkingIsOneSwitchThatLeavesTheViewAlone) {
    auto* box = Button("chkFlagDataPoints");
    SetView(20, 60);
    for (const bool marked : {false, true}) {
        marked ? box->click() : Do("mnuMarkDataPoints");
        EXPECT_EQ(Plot.Curves()[0].Style == CurveStyle::kLineWithMarkers, marked);
        EXPECT_EQ(Item("mnuMarkDataPoints")->isChecked(), marked);
        EXPECT_EQ(box->isChecked(), marked);
        EXPECT_EQ(Store.Values["UseDataMarkers"], marked ? "YES" : "NO");
        EXPECT_EQ(Shown(), "X20..60 Y20..60 T20..60");
    }
    // from then on rebuilds keep the view that they leave
    DoAll({{"mnuRefresh", ""}, {"mnuCanZoomOut", "X20..60 Y20..60 T20..60"}});
}

TEST_F(PlotOptionControls, PeriodsBelongToTheirLayoutAndAreCheckedAsTyped) {
    const struct {
        int Layout;
        const char *From, *To, *Message, *Shown;  // without a message it can be set
    } rows[] = {{0, "01/02/2003", "Jan-03-2003 12:00", "", "X35..87"},
                {0, "01/03/2003", "01/03/2003", "The end must be later than the start", ""},
                {0, "01/02/2003", "02/30/2003", "02/30/2003 is not a valid date", ""},
                {1, "06:00", "6:00 PM", "", "X25..75"},
                {1, "25:00", "18:00", "25:00 is not a valid time", "X25..75"}};
    for (const auto& row : rows) {
        const bool dates = row.Layout == 0;
        Do(dates ? "mnuGraphType_0|mnuDisplayPeriod_0" : "mnuGraphType_1");
        Button(dates ? "optPeriodDisplay_1" : "optPeriodDisplay_2")->click();
        EXPECT_TRUE(Button(dates ? "optGraph_0" : "optGraph_1")->isChecked());
        EXPECT_EQ(Button("optPeriodDisplay_1")->isEnabled(), dates);
        EXPECT_EQ(Button("optPeriodDisplay_2")->isEnabled(), !dates);
        EXPECT_EQ(Store.Values["DisplayPeriod"], dates ? "1" : "2");
        Type(dates ? "txtStartUserDisplayPeriod" : "txtStartUserDisplayTime", row.From);
        Type(dates ? "txtEndUserDisplayPeriod" : "txtEndUserDisplayTime", row.To);
        EXPECT_EQ(Text(dates ? "lblDatesErr" : "lblTimesErr"), row.Message);
        EXPECT_EQ(Set()->isEnabled(), *row.Message == '\0');
        Set()->click();
        EXPECT_EQ(Shown(), row.Shown) << row.From;
        Do("Ctrl+0");
    }
    // a time of day outlives a rebuild but not its layout
    Type("txtStartUserDisplayTime", "06:00");
    Press("txtEndUserDisplayTime", Qt::Key_Return);
    EXPECT_EQ(Store.Values["DisplayTimeFrom"] + Store.Values["DisplayTimeTo"], "06:0018:00");
    EXPECT_NE(Text("lblPeriod").find("06:00 - 18:00"), std::string::npos);
    // setting a period is a zoom that can be taken back
    DoAll({{"mnuRefresh", "X25..75"}, {"mnuCanZoomOut", ""}});
    Do("mnuGraphType_2");
    EXPECT_TRUE(Button("optPeriodDisplay_0")->isChecked());
    EXPECT_TRUE(Item("mnuDisplayPeriod_0")->isChecked());
    EXPECT_EQ(Store.Values["DisplayPeriod"], "0");
}

TEST_F(PlotOptionControls, DaysOfTheWeekAreChosenFromListsThatBeginWithTheWeek) {
    Button("optGraph_2")->click();
    EXPECT_TRUE(Item("mnuGraphType_2")->isChecked());
    EXPECT_EQ(Store.Values["GraphType"], "2");
    Button("optPeriodDisplay_3")->click();
    Press("cmbDisplayDayEnd", Qt::Key_Home);
    EXPECT_EQ(Store.Values["EndViewDayOn"], "Sunday");
    // a later start takes the end with it
    for (int down = 0; down < 3; ++down) Press("cmbDisplayDayStart", Qt::Key_Down);
    EXPECT_EQ(Store.Values["StartViewDayOn"] + Store.Values["EndViewDayOn"], "3Wednesday");
    Set()->click();
    EXPECT_EQ(Shown(), "X43..57") << "the one day is shown whole";
    Press("cmbDisplayDayEnd", Qt::Key_Up);
    EXPECT_EQ(Text("lblDaysErr"), "The last day must not lie before the first day");
    EXPECT_FALSE(Set()->isEnabled());
    Press("cmbDisplayDayEnd", Qt::Key_End);

    const double wednesday = Plot.Curves()[0].X[0];
    Button("optStartWeek_1")->click();
    EXPECT_DOUBLE_EQ(Plot.Curves()[0].X[0], wednesday - 1);
    EXPECT_EQ(Find<QComboBox>("cmbDisplayDayStart")->currentText(), QStringLiteral("Thursday"));
    EXPECT_EQ(Shown(), "X43..100") << "places in the week stay";
    EXPECT_EQ(Store.Values["StartWeekOn"] + Store.Values["EndViewDayOn"], "1Sunday");
}

TEST_F(PlotOptionControls, TheScrollBarMovesTheWindowOverTheData) {
    auto* bar = Find<QScrollBar>("Scroll1");
    EXPECT_FALSE(bar->isEnabled());
    SetView(20, 40);
    EXPECT_NEAR(1.0 * bar->value() / bar->maximum(), 0.25, 0.001);
    Press("Scroll1", Qt::Key_PageDown);
    EXPECT_EQ(Shown(), "X40..60 Y20..40 T20..40");
    Press("Scroll1", Qt::Key_End);
    EXPECT_EQ(Shown(), "X80..100 Y20..40 T20..40");
}

TEST_F(PlotOptionControls, FindingAPointSelectsTheReadingNearestToADate) {
    const std::pair<const char*, const char*> rows[] = {{"01/02/2003 15:10", ""},
                                                        {"rubbish", "rubbish is not a valid date"},
                                                        {"01/02/2004", "Date not Located"}};
    Do("Ctrl+F");
    EXPECT_EQ(Window().focusWidget(), Find<QWidget>("txtFindPoint"));
    for (const auto& row : rows) {
        Type("txtFindPoint", row.first);
        EXPECT_EQ(Button("cmdFindPoint")->isEnabled(), *row.first == '0');
        Press("txtFindPoint", Qt::Key_Return);
        EXPECT_EQ(Text("lblFindPointErr"), row.second);
        EXPECT_EQ(Plot.Selected, (ChartPoint{0, 13}));
    }
}

TEST_F(PlotOptionControls, ScalesSetByHandAreCheckedAsTypedAndTakenTogether) {
    const struct {
        const char *Check, *From, *To, *Typed, *TypedTo, *Message, *Shown;
    } rows[] = {{"chkDates", "txtDateFrom", "txtDateTo", "01/02/2003", "soon",
                 "soon is not a valid date", ""},
                {"chkDates", "txtDateFrom", "txtDateTo", "01/02/2003", "01/03/2003", "", "X35..70"},
                {"chkGas", "txtGasFrom", "txtGasTo", "27", "7",
                 "The maximum must be above the minimum", "X35..70"},
                {"chkTemp", "txtTempFrom", "txtTempTo", "1000", "2000", "", "X35..70 T2994..6024"}};
    for (const auto& row : rows) {
        InScales([&](QDialog& dialog) {
            EXPECT_EQ(FromQt(Button("chkGas")->text()), "&Gas (-0.1 - 28)");
            EXPECT_FALSE(Find<QLineEdit>(row.From)->isEnabled());
            Button(row.Check)->click();
            Type(row.From, row.Typed);
            Type(row.To, row.TypedTo);
            EXPECT_EQ(Text("lblErr"), row.Message);
            EXPECT_EQ(Button("CmdOK")->isEnabled(), *row.Message == '\0');
            Button("CmdOK")->click();
            EXPECT_EQ(dialog.isVisible(), *row.Message != '\0');
        });
        EXPECT_EQ(Shown(), row.Shown);
    }
    DoAll({{"mnuCanZoomOut", "X35..70"}});
    InScales([&](QDialog& dialog) {
        EXPECT_EQ(FromQt(Button("chkDates")->text()),
                  "&Dates (02-Jan-2003 00:00:00 - 03-Jan-2003 00:00:00)");
        Button("chkGas")->click();
        Type("txtGasFrom", "3");
        Find<QAbstractButton>("cmdCancel", &dialog)->click();
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(Shown(), "X35..70");
}

TEST_F(PlotOptionControls, EveryCursorIsStoredAndDrawnAtTheSelectedReading) {
    // far above and far beside the reading, at the shape's left side, its upper left corner,
    // half-way between those two, and within it
    const QPoint probes[] = {{0, -60}, {60, 0}, {-6, 0}, {-6, -6}, {-4, -4}, {2, 3}};
    const char* const dark[] = {"111000", "001100", "100000", "011000",
                                "001010", "000000", "001111"};
    Store.Values["UseLblColors"] = "NO";
    Store.Values["UseDataMarkers"] = "NO";
    ShowPlot();
    Click(PixelOf({0, 13}));
    const PixelView view = Drawn().ViewOf(ChartAxis::kLeft);
    const QPoint reading(static_cast<int>(view.PixelX(Plot.Curves()[0].X[13])),
                         static_cast<int>(view.PixelY(13)));
    for (int style = 0; style < 7; ++style) {
        Button(("optCursorType_" + std::to_string(style)).c_str())->click();
        EXPECT_EQ(Store.Values["CursorType"], std::to_string(style));
        QCoreApplication::processEvents();
        const QImage picture = Drawn().grab().toImage();
        std::string found;
        for (const QPoint& at : probes) {
            found += qGray(picture.pixel(reading + at)) < 110 ? '1' : '0';
        }
        EXPECT_EQ(found, dark[style]) << style;
    }
}

TEST_F(PlotOptionControls, StartingStoresNoneOfTheOptions) {
    const decltype(Store.Values) stored = {
        {"DisplayTimeFrom", "07:00"}, {"DisplayTimeTo", "19:00"},
        {"GraphType", "2"},           {"DisplayTemperatureUnits", "1"},
        {"StartWeekOn", "1"},         {"StartViewDayOn", "2"},
        {"EndViewDayOn", "Friday"},   {"UseDataMarkers", "NO"},
        {"ScaleYAxisOnZoom", "YES"},  {"CursorType", "4"},
        {"DisplayPeriod", "3"}};
    for (const auto& entry : stored) EXPECT_FALSE(Store.Values.contains(entry.first));
    for (const auto& entry : stored) Store.Values[entry.first] = entry.second;
    const auto before = Store.Values;
    ShowPlot();
    EXPECT_EQ(Store.Values, before);
    EXPECT_EQ(Find<QComboBox>("cmbDisplayDayStart")->currentText(), QStringLiteral("Wednesday"));
    EXPECT_EQ(Find<QComboBox>("cmbDisplayDayEnd")->currentText(), QStringLiteral("Friday"));
    EXPECT_EQ(Find<QLineEdit>("txtEndUserDisplayTime")->text(), QStringLiteral("19:00"));
    EXPECT_FALSE(Item("mnuMarkDataPoints")->isChecked());
    EXPECT_EQ(Plot.Cursor.Style, CursorStyle::kCircle);
    EXPECT_TRUE(Button("optPeriodDisplay_0")->isChecked()) << "a start shows all data";
}

}  // namespace
}  // namespace brask
