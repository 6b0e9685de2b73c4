#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/DataDirectories.h"
#include "data/DiagnosticLog.h"
#include "data/FilePlacing.h"
#include "data/TemperatureUnit.h"
#include "platform/posix/PosixSystemInformation.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {
namespace {

using testing::ElementsAre;

struct Placing {
    MemoryFiles Disk;
    ScriptedUserInterface User;
    EnglishTexts Words;
    PosixSystemInformation Information;
    FilePlacing Files{Disk, User, Words, Information};
};

TEST(FilePlacing, DestinationsGetTheirExtension) {
    const std::pair<std::string, std::string> cases[] = {{"/d/Run1", "/d/Run1.csv"},
                                                         {"/d/Run1.csv", "/d/Run1.csv"},
                                                         {"/d/Run1.CSV", "/d/Run1.CSV.csv"}};
    for (const bool noMove : {false, true}) {
        for (const auto& [asked, placed] : cases) {
            Placing placing;
            placing.Disk.NoMove = noMove;
            placing.Disk.Contents = {{"/raw", std::string(100001, 'x')}, {placed, "old"}};
            EXPECT_TRUE(
                placing.Files.PlaceReceivedFile(std::string("/raw\0junk", 9), asked, "/i/"));
            EXPECT_EQ(placing.Disk.Contents.size(), 1U);
            EXPECT_EQ(placing.Disk.Contents[placed], std::string(100001, 'x'));
        }
    }
}

TEST(FilePlacing, WhenNeitherWorksTheUserIsToldAndNothingIsLost) {
    Placing placing;
    placing.Disk.Contents = {{"/raw", "bytes"}};
    placing.Disk.Directories.insert("/d/Run1.csv");
    placing.Disk.NoMove = true;
    EXPECT_FALSE(placing.Files.PlaceReceivedFile("/raw", "/d/Run1", "/data/From TalvexK42/"));
    ASSERT_EQ(placing.User.Shown.size(), 1U);
    EXPECT_EQ(placing.User.Shown[0].Title, "File Rename Failure");
    EXPECT_EQ(placing.User.Shown[0].Text,
              "Could Not Rename File \r\n/raw\r\n To \r\n/d/Run1.csv\r\nError:\r\n"
              "Is a directory\r\n"
              "Please manually copy the file to the /data/From TalvexK42/ Directory");
    EXPECT_EQ(placing.Disk.Contents["/raw"], "bytes");
}

TEST(FilePlacing, FailureAtEveryStepLosesNothing) {
    for (const bool forGood : {false, true}) {
        bool untouched = false;
        for (int at = 0; !untouched; ++at) {
            Placing placing;
            placing.Disk.Contents = {{"/raw", "new"}, {"/run.csv", "old"}};
            placing.Disk.NoMove = true;
            placing.Disk.FailAt = at;
            placing.Disk.FailForGood = forGood;
            const bool placed = placing.Files.PlaceReceivedFile("/raw", "/run.csv", "/");
            untouched = placing.Disk.Operations <= at;
            EXPECT_EQ(placing.User.Shown.size(), placed ? 0U : 1U);
            EXPECT_EQ(placing.Disk.Contents.contains("/raw"), !placed);
            const std::string& content = placing.Disk.Contents["/run.csv"];
            EXPECT_TRUE(content == "new" || (content == "old" && !placed));
            ASSERT_LT(at, 20);
        }
    }
}

TEST(FilePlacing, AFileAlreadyInPlaceStays) {
    Placing placing;
    placing.Disk.Contents = {{"/run.csv", "bytes"}};
    placing.Disk.NoMove = true;
    EXPECT_TRUE(placing.Files.PlaceReceivedFile("/run.csv", "/run.csv", "/"));
    EXPECT_EQ(placing.Disk.Contents["/run.csv"], "bytes");
}

TEST(FilePlacing, SavingRefusesAnExistingFile) {
    Placing placing;
    placing.Disk.Contents = {{"/a.csv", "bytes"}, {"/b.csv", "other"}};
    DataSet data;
    data.CurrentDataFile = "/a.csv";
    EXPECT_FALSE(placing.Files.SaveDataFile(data, "/b.csv"));
    EXPECT_THAT(placing.User.ShownTexts(), ElementsAre("File exists"));
    EXPECT_EQ(placing.Disk.Contents["/b.csv"], "other");
    EXPECT_TRUE(placing.Files.SaveDataFile(data, "/c.csv"));
    EXPECT_EQ(placing.Disk.Contents["/c.csv"], "bytes");
    EXPECT_EQ(data.CurrentDataFile, "/a.csv");
}

TEST(DataDirectories, WhereTheRootLies) {
    struct Case {
        std::map<std::string, std::string> Stored;
        WindowsKind Kind;
        std::string Override;
        std::string Root;
        bool Notice;
    };
    using enum WindowsKind;
    const std::string active = "UserSpecifiedDirectoryActive";
    const Case cases[] = {
        {{}, kNotClassified, "", "/home/documents/VEK/", false},
        {{}, kNt5, "", "/home/shared/VEK/", false},
        {{}, kNt5Early, "", "/home/documents/VEK/", false},
        {{{"DataAccessIsGlobal", "NO"}}, kNt5, "", "/home/documents/VEK/", false},
        {{{"UserSpecDir", "/data"}}, kNotClassified, "", "/home/documents/VEK/", false},
        {{{active, "yes"}, {"UserSpecDir", "/data"}}, kNt5, "", "/home/shared/VEK/", false},
        {{{active, "YES"}, {"UserSpecDir", "/data//"}}, kNotClassified, "", "/data/VEK/", false},
        {{{active, "YES"}, {"UserSpecDir", "/data\\mine"}}, kNt5, "", "/data/mine/VEK/", false},
        {{{active, "YES"}, {"UserSpecDir", "/"}}, kNotClassified, "", "/VEK/", false},
        {{{active, "YES"}, {"UserSpecDir", "D:\\Data"}}, kNt5, "", "/home/shared/VEK/", true},
        {{{active, "YES"}}, kNotClassified, "", "/home/documents/VEK/", true},
        {{{active, "YES"}, {"UserSpecDir", "/data"}}, kNt5, "/over", "/over/VEK/", false}};
    for (const Case& test : cases) {
        MemoryFiles disk;
        ScriptedUserInterface user;
        MemorySettingsStore store;
        store.Values = test.Stored;
        const FixedUserLocale locale;
        const Settings settings(store, store, locale, [](const auto&, const auto&) {});
        const EnglishTexts texts;
        DataDirectories directories(disk, user, texts);
        directories.OverrideBase(test.Override);
        directories.ResolveDataDirectories(settings, test.Kind);
        EXPECT_EQ(directories.DataRootDir(), test.Root);
        EXPECT_EQ(directories.PocketPcDir(), test.Root + "From PocketPC/");
        EXPECT_EQ(directories.InstrumentDir(), test.Root + "From TalvexK42/");
        EXPECT_TRUE(disk.IsDirectory(test.Root + "From PocketPC"));
        EXPECT_TRUE(disk.IsDirectory(test.Root + "From TalvexK42"));
        EXPECT_EQ(user.Notices.size(), test.Notice ? 1U : 0U);
        EXPECT_TRUE(user.Shown.empty());
    }
}

TEST(DataDirectories, WhatCannotBeCreatedIsSaid) {
    MemoryFiles disk;
    ScriptedUserInterface user;
    const EnglishTexts texts;
    DataDirectories directories(disk, user, texts);
    disk.FailAt = 0;
    directories.EnsureDirectory("/a/");
    EXPECT_TRUE(user.Shown.empty()) << "the single directory is tried when the chain fails";
    disk.Contents["/file"] = "";
    directories.EnsureDirectory("/file/x/");
    EXPECT_THAT(user.ShownTexts(), ElementsAre("Cannot Create Directory /file/x"));
}

TEST(DiagnosticLog, IsCutToItsLastBytesBeforeItGrows) {
    const std::string entry = "[05-Mar-2004 13:30:00] text\r\n";
    for (const std::size_t before : {std::size_t{0}, std::size_t{29999}, std::size_t{30000},
                                     std::size_t{30001}, std::size_t{200000}}) {
        MemoryFiles disk;
        const ManualClock clock;
        DiagnosticLog log(disk, clock);
        std::string old(before, '\0');
        for (std::size_t i = 0; i < before; ++i) old[i] = static_cast<char>(i % 251);
        if (before > 0) disk.Contents[log.Path()] = old;
        log.WriteLog("text");
        const std::string kept = before > 30000 ? old.substr(before - 30000) : old;
        EXPECT_EQ(disk.Contents[log.Path()], kept + entry) << before;
    }
}

TEST(TemperatureUnit, ThereAndBackAgain) {
    DataSet data;
    data.Recreate(0);
    data.Temperature = {-273.15, -40, 0, 26.1, 100, 12345.6, 7};
    const std::vector<double> celsius = data.Temperature;
    data.ReadingCount = 6;
    TemperatureUnit unit;
    unit.SwitchTo(true, data);
    EXPECT_EQ(unit.Label(), "°F");
    EXPECT_DOUBLE_EQ(data.Temperature[1], -40);
    EXPECT_DOUBLE_EQ(data.Temperature[3], 78.98);
    unit.SwitchTo(false, data);
    for (std::size_t i = 0; i < celsius.size(); ++i) {
        EXPECT_NEAR(data.Temperature[i], celsius[i], 1e-9);
    }
    EXPECT_EQ(data.Temperature[6], 7) << "spare slots are not touched";
}

}  // namespace
}  // namespace brask
