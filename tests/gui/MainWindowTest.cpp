// The main window from start to loaded data: captions, states, options, files.
#include <gmock/gmock.h>

#include <QButtonGroup>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "WindowFixture.h"

namespace brask {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kTitle = "VEK Talvex© K42   Brask Lite";
constexpr const char* kNoDataYet = "There is No Data Yet - Download Data or Open a Data File";

using MainWindow = WindowFixture;

TEST_F(MainWindow, StartsWithoutDataAndWritesTheDefaultColours) {
    Start();
    EXPECT_EQ(Caption(), std::string(kTitle) + " (no data loaded)");
    EXPECT_FALSE(Item("mnuFileViewData")->isEnabled());
    EXPECT_FALSE(Find<TabControl>("SSTab1")->isTabEnabled(1));
    EXPECT_EQ(Store.Values["NumPlotColorsDefined"], "9");
    EXPECT_TRUE(Disk.IsDirectory("/home/documents/VEK/From PocketPC"));
    EXPECT_TRUE(Disk.IsDirectory("/home/documents/VEK/From TalvexK42"));
    // the loader pushes values into controls; none of them may write back what it was given
    EXPECT_FALSE(Store.Values.contains("GraphType"));
    EXPECT_FALSE(Store.Values.contains("DisplayTemperatureUnits"));
    EXPECT_THAT(User.Shown, IsEmpty());
}

TEST_F(MainWindow, DirectoryThatCannotBeCreatedIsToldAndStartGoesOn) {
    Disk.Contents["/home/documents"] = "a file where the directory should be";
    Start();
    EXPECT_THAT(User.ShownTexts(),
                ElementsAre("Cannot Create Directory /home/documents/VEK",
                            "Cannot Create Directory /home/documents/VEK/From PocketPC",
                            "Cannot Create Directory /home/documents/VEK/From TalvexK42"));
    EXPECT_TRUE(Item("mnuOpen")->isEnabled());
}

TEST_F(MainWindow, ShowsAFileAndReturnsToNoDataAfterOneWithoutReadings) {
    Start();
    Open("/data/three.csv");
    EXPECT_EQ(Caption(), std::string(kTitle) + "   File:three.csv");
    EXPECT_EQ(Plot.Curves().size(), 2U);
    EXPECT_TRUE(Item("mnuFileViewData")->isEnabled());
    EXPECT_TRUE(Find<TabControl>("SSTab1")->isTabEnabled(1));
    EXPECT_EQ(Find<QLabel>("lblStatusCounts")->text(), QStringLiteral("Readings: 3"));
    EXPECT_THAT(User.Shown, IsEmpty());

    Open("/data/bad.csv");
    EXPECT_EQ(Caption(), kTitle);
    EXPECT_THAT(User.ShownTexts(),
                ElementsAre(HasSubstr("Date of XXX-01-2003 00:05:12"),
                            HasSubstr("Gas PPM   26.1 is invalid"), "No data was read"));
    EXPECT_TRUE(Plot.Curves().empty());
    EXPECT_TRUE(Find<QWidget>("frameCommandEnabled")->isVisible());
    EXPECT_FALSE(Item("mnuFileViewData")->isEnabled());
    EXPECT_EQ(Find<QLabel>("lblStatusCounts")->text(),
              QStringLiteral("Readings: 0, rejected lines: 2"));
}

TEST_F(MainWindow, CommandsThatWouldDisturbALoadAreDisabledWhileItRuns) {
    Start();
    Open("/data/three.csv");
    bool looked = false;
    User.OnEvents = [&] {
        looked = true;
        EXPECT_FALSE(Item("mnuOpen")->isEnabled());
        EXPECT_FALSE(Find<QMenu>("mnuRecentFiles")->isEnabled());
        EXPECT_FALSE(Find<QButtonGroup>("optGraph")->button(0)->isEnabled());
        EXPECT_TRUE(Item("mnuExit")->isEnabled());
        EXPECT_TRUE(Plot.Curves().empty()) << "curves look into arrays that are being replaced";
        EXPECT_EQ(Caption(), kTitle);
        Open("/data/bad.csv");  // a second load must not start
    };
    Open("/data/three.csv");
    EXPECT_TRUE(looked);
    EXPECT_EQ(Data.ReadingCount, 3);
    EXPECT_TRUE(Item("mnuOpen")->isEnabled());
}

TEST_F(MainWindow, ClosingWhileAFileLoadsEndsTheLoad) {
    Start();
    User.OnEvents = [&] { Window().close(); };
    Open("/data/three.csv");
    EXPECT_TRUE(User.Ended());
    EXPECT_EQ(Data.ReadingCount, 0);
    EXPECT_THAT(User.Shown, IsEmpty());
}

TEST_F(MainWindow, GridTabWithoutReadingsReturnsToTheTabBefore) {
    Start();
    auto* tabs = Find<TabControl>("SSTab1");
    tabs->setCurrentIndex(2);
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(tabs->currentIndex(), 2);
    EXPECT_THAT(User.ShownTexts(), ElementsAre(kNoDataYet));
}

TEST_F(MainWindow, GridShowsTheReadingsOfTheLastLoadInTheUnitInForce) {
    Start();
    Open("/data/three.csv");
    Item("mnuFileViewData")->trigger();
    const auto* model = Find<QTableView>("MSFlexGrid1")->model();
    const auto row = [model](int number) {
        QStringList cells;
        for (int column = 0; column < 5; ++column) {
            cells << model->index(number, column).data().toString();
        }
        return FromQt(cells.join(QLatin1Char('|')));
    };
    ASSERT_EQ(model->rowCount(), 3);
    EXPECT_EQ(row(0), "1|01-Jan-2003 00:05:12|0.1|26.1|");
    Find<QButtonGroup>("optTemperatureDisplay")->button(0)->click();
    EXPECT_EQ(row(0), "1|01-Jan-2003 00:05:12|0.1|79.0|");
    EXPECT_EQ(model->headerData(3, Qt::Horizontal).toString(), QStringLiteral("Temp (°F)"));
    Open("/data/bad.csv");
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_EQ(Find<TabControl>("SSTab1")->currentIndex(), 0);
}

TEST_F(MainWindow, TemperatureIsConvertedOncePerChangeOfChoice) {
    Start();
    Open("/data/three.csv");
    auto* unit = Find<QButtonGroup>("optTemperatureDisplay");
    EXPECT_TRUE(unit->button(1)->isChecked());
    unit->button(0)->click();
    EXPECT_EQ(Store.Values["DisplayTemperatureUnits"], "1");
    EXPECT_DOUBLE_EQ(Data.Temperature[1], 50.0);
    EXPECT_THAT(Plot.Y1.Title, HasSubstr("°F"));
    unit->button(0)->click();
    EXPECT_DOUBLE_EQ(Data.Temperature[1], 50.0);
    unit->button(1)->click();
    EXPECT_DOUBLE_EQ(Data.Temperature[1], 10.0);
}

TEST_F(MainWindow, GraphTypeIsOneSwitchInMenuOptionsAndSettings) {
    Store.Values["GraphType"] = "1";
    Start();
    Open("/data/three.csv");
    EXPECT_TRUE(Item("mnuGraphType_1")->isChecked());
    EXPECT_TRUE(Find<QButtonGroup>("optGraph")->button(1)->isChecked());
    EXPECT_EQ(Plot.Curves().size(), 4U);
    Item("mnuGraphType_0")->trigger();
    EXPECT_TRUE(Find<QButtonGroup>("optGraph")->button(0)->isChecked());
    EXPECT_EQ(Plot.Curves().size(), 2U);
    Find<QButtonGroup>("optGraph")->button(2)->click();
    EXPECT_TRUE(Item("mnuGraphType_2")->isChecked());
    EXPECT_EQ(Store.Values["GraphType"], "2");
}

TEST_F(MainWindow, OpenAsksInTheDataDirectoryAndACancelEndsQuietly) {
    Start();
    Item("mnuOpen")->trigger();
    ASSERT_EQ(Choose.Asked.size(), 1U);
    EXPECT_EQ(Choose.Asked[0].Title, QStringLiteral("Select Talvex© K42 Data File To Read"));
    EXPECT_EQ(Choose.Asked[0].Filter, QStringLiteral("All Files|*.*|CSV Files|*.csv"));
    EXPECT_EQ(Choose.Asked[0].Start, QStringLiteral("/home/documents/VEK/"));
    EXPECT_THAT(User.Shown, IsEmpty());
    Choose.Answers = {QStringLiteral("/data/three.csv")};
    Item("mnuOpen")->trigger();
    EXPECT_EQ(Data.ReadingCount, 3);
}

TEST_F(MainWindow, SavingCopiesTheFileAndRefusesAnExistingOne) {
    Start();
    Item("mnuSaveDataFile")->trigger();
    EXPECT_THAT(User.ShownTexts(), ElementsAre("There is no data to save"));
    User.Shown.clear();

    Open("/data/three.csv");
    Find<QButtonGroup>("optTemperatureDisplay")->button(0)->click();
    Choose.Answers = {QStringLiteral("/data/copy.csv"), QStringLiteral("/data/bad.csv")};
    Item("mnuSaveDataFile")->trigger();
    EXPECT_EQ(Disk.Contents["/data/copy.csv"], kThreeReadings) << "the file, not the display";
    EXPECT_EQ(Choose.Asked[0].DefaultSuffix, QStringLiteral("bmp"));
    EXPECT_EQ(Choose.Asked[0].Filter, QStringLiteral("CSV File|*.csv|All Files|*.*"));
    Item("mnuSaveDataFile")->trigger();
    EXPECT_THAT(User.ShownTexts(), ElementsAre("File exists"));
    EXPECT_EQ(Disk.Contents["/data/bad.csv"], kBadLines);
}

TEST_F(MainWindow, HeadersAreShownAsRead) {
    Start();
    Open("/data/three.csv");
    Item("mnuViewHeaders")->trigger();
    ASSERT_EQ(User.Shown.size(), 1U);
    EXPECT_EQ(User.Shown[0].Text,
              "File: /data/three.csv\r\nInstrument: K42\r\nSerial number: 7\r\n"
              "Date: JAN-01-2003\r\nGas: CO\r\nFirst reading: 01-Jan-2003 00:05:12\r\n"
              "Last reading: 02-Jan-2003 06:00:00\r\nReadings: 3");
}

TEST_F(MainWindow, RecentFilesListNewestFirstAndCanBeCleared) {
    Disk.Contents["/data/other.csv"] = kThreeReadings;
    Start();
    auto* menu = Find<QMenu>("mnuRecentFiles");
    EXPECT_FALSE(menu->isEnabled());
    Open("/data/other.csv");
    Open("/data/three.csv");
    Open("/data/bad.csv");
    ASSERT_EQ(menu->actions().size(), 4);  // two files, a line, the clear item
    menu->actions()[1]->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(Data.CurrentDataFile, "/data/other.csv");
    menu->actions().constLast()->trigger();
    QCoreApplication::processEvents();
    EXPECT_FALSE(menu->isEnabled());
    EXPECT_EQ(OwnStore.Values["RecentFiles"], "");
}

TEST_F(MainWindow, AFileDroppedOnTheWindowIsOpened) {
    Start();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/data/three.csv"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Window(), &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Window(), &drop);
    QCoreApplication::processEvents();
    EXPECT_EQ(Data.ReadingCount, 3);
}

TEST_F(MainWindow, UnmappedCursorTypeIsToldAtStart) {
    Store.Values["CursorType"] = "9";
    Start();
    EXPECT_THAT(User.ShownTexts(), ElementsAre("Cursor Type Not Mapped SetCursorType(9)"));
    EXPECT_EQ(Find<QButtonGroup>("optCursorType")->checkedId(), -1);
}

}  // namespace
}  // namespace brask
