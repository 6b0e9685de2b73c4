#include <gtest/gtest.h>

#include "platform/IniSettingsStore.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

const std::string kPath = "/home/settings/VEK/Brask Lite.ini";

struct TwoSections {
    std::string Damage;
    std::string Kept;
    IniSettingsFile File;
    IniSettingsStore Known{File, "Brask Lite"};
    IniSettingsStore Own{File, "Window"};

    explicit TwoSections(Files& disk)
        : File(disk, kPath, [this](const std::string& reason, const std::string& kept) {
              Damage = reason;
              Kept = kept;
          }) {}
};

TEST(IniSettingsStore, TwoRunningProgramsKeepEachOthersKeys) {
    MemoryFiles disk;
    TwoSections first(disk);
    TwoSections second(disk);
    ASSERT_TRUE(first.Known.Save("A", "1").Ok());
    ASSERT_TRUE(second.Known.Save("B", "2").Ok());
    ASSERT_TRUE(first.Known.Save("C", "3").Ok());
    EXPECT_EQ(disk.Contents[kPath], "[Brask Lite]\nA=1\nB=2\nC=3\n");
    EXPECT_EQ(first.Known.Get("B", "-"), "2") << "seen once its own save has read the file";
}

TEST(IniSettingsStore, DamagedFileIsSetAsideAndReported) {
    const std::pair<std::string, std::string> cases[] = {
        {"[Brask Lite]\nnot a setting\n", "line 2 is no Key=Value line"},
        {std::string("a=\0", 3), "line 1 holds a zero byte"},
        {std::string(IniSettingsFile::kSizeLimit + 1, ';'), "the file is larger than expected"}};
    for (const auto& [content, damage] : cases) {
        MemoryFiles disk;
        disk.Contents[kPath] = content;
        TwoSections store(disk);
        EXPECT_EQ(store.Damage, damage);
        EXPECT_FALSE(disk.Contents.contains(kPath));
        EXPECT_EQ(store.Known.Get("GraphType", "0"), "0");
        ASSERT_TRUE(store.Known.Save("GraphType", "1").Ok());
        EXPECT_EQ(disk.Contents[kPath], "[Brask Lite]\nGraphType=1\n");
        EXPECT_EQ(disk.Contents[kPath + ".bad"], content);
    }
}

TEST(IniSettingsStore, DamageWhileTheProgramRunsCostsNoSettingAndNoEarlierFile) {
    MemoryFiles disk;
    disk.Contents[kPath] = "[Brask Lite]\nA=1\n";
    disk.Contents[kPath + ".bad"] = "kept before";
    TwoSections store(disk);
    disk.Contents[kPath] = "damage";
    ASSERT_TRUE(store.Known.Save("B", "2").Ok());
    EXPECT_EQ(store.Kept, kPath + ".bad2");
    EXPECT_EQ(disk.Contents[kPath], "[Brask Lite]\nA=1\nB=2\n");
    EXPECT_EQ(disk.Contents[kPath + ".bad"], "kept before");
    EXPECT_EQ(disk.Contents[kPath + ".bad2"], "damage");
}

TEST(IniSettingsStore, FailureAtEveryOperationKeepsTheOldValue) {
    const std::string before = "[Brask Lite]\nA=old\nB=1\n";
    for (const bool forGood : {false, true}) {
        bool saved = false;
        int failed = 0;
        for (int at = 0; !saved; ++at) {
            MemoryFiles disk;
            disk.Contents[kPath] = before;
            TwoSections store(disk);
            disk.Operations = 0;
            disk.FailAt = at;
            disk.FailForGood = forGood;
            saved = store.Known.Save("A", "new").Ok();
            EXPECT_EQ(store.Known.Get("A", "-"), saved ? "new" : "old") << at;
            EXPECT_EQ(disk.Contents[kPath] == before, !saved) << at;
            EXPECT_EQ(store.Known.Get("B", "-"), "1") << at;
            failed += saved ? 0 : 1;
        }
        // directory, lock, open, two reads, replace, write, commit
        EXPECT_EQ(failed, 8);
    }
}

TEST(IniSettingsStore, AFileThatCannotBeReadAndAValueThatWouldDamageItLeaveItAlone) {
    MemoryFiles disk;
    disk.Contents[kPath] = "[Brask Lite]\nA=1\n";
    disk.FailAt = 0;
    TwoSections store(disk);
    EXPECT_EQ(store.Damage, "Input/output error");
    EXPECT_EQ(store.Kept, "");
    EXPECT_FALSE(store.Known.Save("B", std::string(IniSettingsFile::kSizeLimit, 'x')).Ok());
    EXPECT_EQ(disk.Contents[kPath], "[Brask Lite]\nA=1\n");
}

}  // namespace
}  // namespace brask
