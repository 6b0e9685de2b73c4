#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "Surroundings.h"
#include "data/DataDirectories.h"
#include "data/DiagnosticLog.h"
#include "data/FilePlacing.h"

namespace brask {
namespace {

struct Placing : Surroundings {
    FilePlacing Files{Disk, User, Words, Information};
};

TEST(FilePlacing, DestinationsGetTheirExtension) {
    // the received file, the name asked for, the name given
    const std::array<std::string, 3> cases[] = {
        {std::string("/raw\0junk", 9), "/d/Run1", "/d/Run1.csv"},
        {"/raw", "/d/Run1.csv", "/d/Run1.csv"},
        {"/raw", "/d/Run1.CSV", "/d/Run1.CSV.csv"},
        {"/d/raw.csv", "/d/raw.csv", "/d/raw.csv"}};  // already in its place
    for (const bool noMove : {false, true}) {
        for (const auto& [source, asked, placed] : cases) {
            Placing placing;
            placing.Disk.NoMove = noMove;
            placing.Disk.Contents[placed] = "old";
            placing.Disk.Contents[source.c_str()] = std::string(100001, 'x');
            EXPECT_TRUE(placing.Files.PlaceReceivedFile(source, asked, "/i/"));
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
    EXPECT_EQ(placing.User.Shown.at(0).Text,
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

TEST(DataDirectories, WhereTheRootLies) {
    using enum WindowsKind;
    using Values = std::map<std::string, std::string>;
    const auto userDirectory = [](const std::string& active, const std::string& directory) {
        return Values{{"UserSpecifiedDirectoryActive", active}, {"UserSpecDir", directory}};
    };
    // the stored settings, the kind, the base that overrides the stored one; the root, the notices
    using Case = std::tuple<Values, WindowsKind, std::string, std::string, std::size_t>;
    const Case cases[] = {{{}, kNotClassified, "", "/home/documents/VEK/", 0},
                          {{}, kNt5, "", "/home/shared/VEK/", 0},
                          {{{"DataAccessIsGlobal", "NO"}}, kNt5, "", "/home/documents/VEK/", 0},
                          {userDirectory("YES", "/data//"), kNotClassified, "", "/data/VEK/", 0},
                          {userDirectory("YES", "/data\\mine"), kNt5, "", "/data/mine/VEK/", 0},
                          {userDirectory("YES", "D:\\Data"), kNt5, "", "/home/shared/VEK/", 1},
                          {userDirectory("YES", ""), kNotClassified, "", "/home/documents/VEK/", 1},
                          {userDirectory("YES", "/data"), kNt5, "/over", "/over/VEK/", 0}};
    for (const auto& [stored, kind, base, root, notices] : cases) {
        Surroundings around;
        around.Known.Values = stored;
        DataDirectories directories(around.Disk, around.User, around.Words);
        directories.OverrideBase(base);
        directories.ResolveDataDirectories(around.Options, kind);
        EXPECT_EQ(directories.DataRootDir(), root);
        EXPECT_TRUE(around.Disk.IsDirectory(root + "From PocketPC")) << root;
        EXPECT_EQ(around.User.Notices.size(), notices);
    }
}

TEST(DiagnosticLog, IsCutToItsLastBytesBeforeItGrows) {
    const std::string entry = "[05-Mar-2004 13:30:00] text\r\n";
    for (const std::size_t before : {0U, 30000U, 30001U, 200000U}) {
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

}  // namespace
}  // namespace brask
