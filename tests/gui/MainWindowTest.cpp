// The main window from start to loaded data: captions, states, options, files; what a user's hand
// meets in its menus and toolbar.
#include <gmock/gmock.h>

#include <QButtonGroup>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSet>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "WindowFixture.h"
#include "app/ToolbarTable.h"

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
    EXPECT_FALSE(Find<TabControl>("SSTab1")->isTabEnabled(1));
    EXPECT_EQ(Store.Values["NumPlotColorsDefined"], "9");
    EXPECT_TRUE(Disk.IsDirectory("/home/documents/VEK/From TalvexK42"));
    EXPECT_THAT(User.Shown, IsEmpty());
}

TEST_F(MainWindow, WhatIsWrongAtTheStartIsToldAndTheStartGoesOn) {
    Disk.Contents["/home/documents"] = "a file where the directory should be";
    Store.Values["CursorType"] = "9";
    Start();
    EXPECT_THAT(User.ShownTexts(), testing::UnorderedElementsAre(
                                       "Cannot Create Directory /home/documents/VEK",
                                       "Cannot Create Directory /home/documents/VEK/From PocketPC",
                                       "Cannot Create Directory /home/documents/VEK/From TalvexK42",
                                       "Cursor Type Not Mapped SetCursorType(9)"));
    EXPECT_EQ(Find<QButtonGroup>("optCursorType")->checkedId(), -1);
    EXPECT_TRUE(Item("mnuOpen")->isEnabled());
}

TEST_F(MainWindow, ShowsAFileAndReturnsToNoDataAfterOneWithoutReadings) {
    StartWith("/data/three.csv");
    EXPECT_EQ(Caption(), std::string(kTitle) + "   File:three.csv");
    EXPECT_EQ(Find<QLabel>("lblStatusCounts")->text(), QStringLiteral("Readings: 3"));
    Item("mnuViewHeaders")->trigger();

    Open("/data/bad.csv");
    EXPECT_EQ(Caption(), kTitle);
    EXPECT_THAT(
        User.ShownTexts(),
        ElementsAre("File: /data/three.csv\r\nInstrument: K42\r\nSerial number: 7\r\n"
                    "Date: JAN-01-2003\r\nGas: CO\r\nFirst reading: 01-Jan-2003 00:05:12\r\n"
                    "Last reading: 02-Jan-2003 06:00:00\r\nReadings: 3",
                    HasSubstr("Date of XXX-01-2003 00:05:12"),
                    HasSubstr("Gas PPM   26.1 is invalid"), "No data was read"));
    EXPECT_TRUE(Plot.Curves().empty());
    EXPECT_TRUE(Find<QWidget>("frameCommandEnabled")->isVisible());
    EXPECT_FALSE(Item("mnuFileViewData")->isEnabled());
    EXPECT_EQ(Find<QLabel>("lblStatusCounts")->text(),
              QStringLiteral("Readings: 0, rejected lines: 2"));
}

TEST_F(MainWindow, CommandsThatWouldDisturbALoadAreDisabledWhileItRuns) {
    StartWith("/data/three.csv");
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

TEST_F(MainWindow, GridAndPlotShowTheReadingsOfTheLastLoadInTheUnitInForce) {
    StartWith("/data/three.csv");
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
    for (const int unit : {1, 0, 0, 1, 0}) {  // converted once per change of choice
        Find<QButtonGroup>("optTemperatureDisplay")->button(unit)->click();
        EXPECT_EQ(row(1),
                  std::string("2|01-Jan-2003 12:00:00|9.5|") + (unit == 1 ? "10.0|" : "50.0|"));
        EXPECT_THAT(Plot.Y1.Title, HasSubstr(unit == 1 ? "°C" : "°F"));
    }
    EXPECT_EQ(Store.Values["DisplayTemperatureUnits"], "1");
    EXPECT_EQ(model->headerData(3, Qt::Horizontal).toString(), QStringLiteral("Temp (°F)"));
    Open("/data/bad.csv");
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_EQ(Find<TabControl>("SSTab1")->currentIndex(), 0);
}

TEST_F(MainWindow, OpenAsksInTheDataDirectoryAndACancelEndsQuietly) {
    Start();
    Item("mnuOpen")->trigger();
    EXPECT_EQ(Choose.Asked.at(0).Filter, QStringLiteral("All Files|*.*|CSV Files|*.csv"));
    EXPECT_EQ(Choose.Asked[0].Start, QStringLiteral("/home/documents/VEK/"));
    EXPECT_THAT(User.Shown, IsEmpty());
    Choose.Answers = {QStringLiteral("/data/three.csv")};
    Item("mnuOpen")->trigger();
    EXPECT_EQ(Data.ReadingCount, 3);
}

TEST_F(MainWindow, SavingCopiesTheFileAndRefusesAnExistingOne) {
    Start();
    Item("mnuSaveDataFile")->trigger();
    Open("/data/three.csv");
    Find<QButtonGroup>("optTemperatureDisplay")->button(0)->click();
    Choose.Answers = {QStringLiteral("/data/copy.csv"), QStringLiteral("/data/bad.csv")};
    Item("mnuSaveDataFile")->trigger();
    EXPECT_EQ(Disk.Contents["/data/copy.csv"], kThreeReadings) << "the file, not the display";
    EXPECT_EQ(Choose.Asked[0].DefaultSuffix, QStringLiteral("bmp"));
    EXPECT_EQ(Choose.Asked[0].Filter, QStringLiteral("CSV File|*.csv|All Files|*.*"));
    Item("mnuSaveDataFile")->trigger();
    EXPECT_THAT(User.ShownTexts(), ElementsAre("There is no data to save", "File exists"));
    EXPECT_EQ(Disk.Contents["/data/bad.csv"], kBadLines);
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

// Two entries with one letter would make the key jump between them.
void ExpectOwnLetters(const QList<QAction*>& actions, const QString& where) {
    QSet<QChar> letters;
    for (const QAction* action : actions) {
        if (action->isSeparator()) continue;
        const QString text = action->text().toLower();
        const auto mark = text.indexOf(QLatin1Char('&'));
        ASSERT_GE(mark, 0) << FromQt(where + text);
        const QChar letter = text.at(mark + 1);
        EXPECT_FALSE(letters.contains(letter)) << FromQt(where + action->text());
        letters.insert(letter);
        if (action->menu() != nullptr) ExpectOwnLetters(action->menu()->actions(), action->text());
    }
}

TEST_F(MainWindow, EveryItemHasItsOwnLetterAndShortcutAndEveryControlANameForAScreenReader) {
    Start();
    ExpectOwnLetters(Window().menuBar()->actions(), QStringLiteral("bar: "));
    QSet<QString> shortcuts;
    for (const QAction* action : Window().findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        if (keys.isEmpty()) continue;
        EXPECT_FALSE(shortcuts.contains(keys)) << FromQt(keys);
        shortcuts.insert(keys);
    }
    EXPECT_TRUE(shortcuts.contains(QStringLiteral("Ctrl+O")));
    for (const auto* button : Window().findChildren<QAbstractButton*>()) {
        // parts that Qt makes of its own accord
        if (button->objectName().startsWith(QStringLiteral("qt_"))) continue;
        if (button->inherits("QTableCornerButton")) continue;
        EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty() &&
                     button->toolTip().isEmpty())
            << FromQt(button->objectName()) << " in " << FromQt(button->parent()->objectName());
    }
}

TEST_F(MainWindow, EveryToolbarButtonHasItsPictureTipAndState) {
    StartWith("/data/three.csv");
    auto* toolbar = Find<Toolbar>("Toolbar1");
    for (const ToolbarRow& row : ToolbarButtons()) {
        if (*row.Key == '\0') continue;
        const QAction* button = toolbar->Button(row.Key);
        ASSERT_NE(button, nullptr) << row.Key;
        EXPECT_FALSE(button->icon().isNull()) << row.Key;
        EXPECT_FALSE(button->toolTip().isEmpty()) << row.Key;
        if (*row.Follows != '\0') {
            EXPECT_EQ(button->isEnabled(), Item(row.Follows)->isEnabled()) << row.Key;
        }
    }
}

}  // namespace
}  // namespace brask
