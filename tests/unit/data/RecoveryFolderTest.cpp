#include <gtest/gtest.h>

#include <algorithm>

#include "Surroundings.h"
#include "data/FileNames.h"
#include "data/RecoveryFolder.h"

namespace brask {
namespace {

struct Recovery : Surroundings {
    DataDirectories Directories{Disk, User, Words};
    RecoveryFolder Folder{Disk, Clock, Directories};

    Recovery() {
        Directories.OverrideBase("/b");
        Directories.ResolveDataDirectories(Options, WindowsKind::kNotClassified);
        Disk.Operations = 0;
    }
};

TEST(Sha256, SumsOfThePublishedExamples) {
    const std::pair<std::string, std::string> cases[] = {
        {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {std::string(1000000, 'a'),
         "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}};
    for (const auto& [text, sum] : cases) {
        for (const std::size_t piece : {std::size_t{7}, std::size_t{64}, text.size() + 1}) {
            Sha256 sha;
            for (std::size_t i = 0; i < text.size(); i += piece) sha.Add(text.substr(i, piece));
            EXPECT_EQ(sha.Hex(), sum);
        }
    }
}

TEST(FileNames, WhateverTheTextTheNameLiesInItsFolder) {
    const std::string umlaut = "\xC3\xBC";
    const std::pair<std::string, std::string> cases[] = {
        {"Run 1.csv", "Run 1.csv"},
        {"../../etc/passwd", "_._.._etc_passwd"},
        {"a\\b:c*d?e\"f<g>h|i", "a_b_c_d_e_f_g_h_i"},
        {std::string("a\0b\r\n\x7F\x1B", 7), "a_b____"},
        {"", "_"},
        {"..", "__"},
        {" .csv", "_.csv"},
        {"a.csv. ", "a.csv._"},
        {"con.csv", "_on.csv"},
        {"Lpt1", "_pt1"},
        {"lpt10.csv", "lpt10.csv"},
        {"caf\xC3\xA9 \xE9.csv", "caf\xC3\xA9 _.csv"},
        {std::string(300, 'x') + ".csv", std::string(251, 'x') + ".csv"},
        {umlaut + std::string(300, 'x'), umlaut + std::string(253, 'x')}};
    for (const auto& [text, name] : cases) EXPECT_EQ(SafeFileName(text), name);
    // a cut never splits a character, and the given ending always stands
    const std::string ending = " 03_05_2004.csv";
    const std::string cut = SafeFileName("x" + std::string(300, '\xC3') + umlaut, ending);
    EXPECT_EQ(cut.size(), 255U);
    std::string umlauts;
    while (umlauts.size() < 300) umlauts += umlaut;
    EXPECT_EQ(SafeFileName("x" + umlauts, ending), "x" + umlauts.substr(0, 238) + ending);
}

TEST(RecoveryFolder, KeepsTheNewestStreamsWithWhatRepeatsThem) {
    Recovery recovery;
    const std::string previous = "50%\tfull \xE9\r\n";
    recovery.Disk.Contents["/b/VEK/old.csv"] = "replaced";
    ASSERT_TRUE(recovery.Folder.KeepReplaced("/b/VEK/old.csv", "other sum").Ok());
    for (int i = 0; i < 23; ++i) {
        recovery.Disk.Contents["/tmp/raw"] = "stream " + std::to_string(i);
        ASSERT_TRUE(recovery.Folder.KeepStream("/tmp/raw", previous + std::to_string(i)).Ok());
    }
    // 20 streams and the other file, which no stream pushes out; index and lock
    const auto kept = recovery.Folder.List();
    ASSERT_EQ(kept.size(), 21U);
    EXPECT_EQ(kept[0].Kind, KeptKind::kReplaced);
    EXPECT_EQ(kept[1].Date, "05-Mar-2004 13:30:00");
    const auto inFolder = [](const auto& entry) {
        return entry.first.find("/2004-") != entry.first.npos;
    };
    EXPECT_EQ(std::ranges::count_if(recovery.Disk.Contents, inFolder), 21);
    for (const KeptFile& file : kept) {
        const std::string path = recovery.Folder.Path() + "/" + file.Name;
        EXPECT_EQ(file.Sha256, Sha256OfFile(recovery.Disk, path).Value());
        EXPECT_EQ(file.Bytes, recovery.Disk.Contents[path].size());
    }
    recovery.Disk.Contents["/elsewhere"] = "stream 7";
    EXPECT_EQ(recovery.Folder.FindStream("/elsewhere").value().PreviousLine, previous + "7");
    recovery.Disk.Contents["/elsewhere"] = "stream 1";  // pushed out
    EXPECT_FALSE(recovery.Folder.FindStream("/elsewhere").has_value());
}

TEST(RecoveryFolder, OnlyOtherContentIsKeptBeforeReplacing) {
    Recovery recovery;
    recovery.Disk.Contents = {{"/d/a.csv", "abc"}};
    const std::string sum = Sha256OfFile(recovery.Disk, "/d/a.csv").Value();
    EXPECT_EQ(recovery.Folder.KeepReplaced("/d/a.csv", sum).Value(), "");
    EXPECT_EQ(recovery.Folder.KeepReplaced("/d/none.csv", sum).Value(), "");
    EXPECT_EQ(recovery.Disk.Contents.size(), 1U);
    const std::string path = recovery.Folder.KeepReplaced("/d/a.csv", "other").Value();
    EXPECT_EQ(path, "/b/VEK/.recovery/2004-03-05 13-30-00 a.csv");
    // the same name in the same second takes another
    EXPECT_EQ(recovery.Folder.KeepReplaced("/d/a.csv", "other").Value(),
              "/b/VEK/.recovery/2004-03-05 13-30-00 a (2).csv");
    EXPECT_EQ(recovery.Disk.Contents["/d/a.csv"], "abc");
    EXPECT_EQ(recovery.Disk.Contents[path], "abc");
}

TEST(RecoveryFolder, TwoEntriesBegunTogetherDoNotMeet) {
    Recovery recovery;
    auto first = recovery.Folder.Begin(KeptKind::kHandheld, "a.csv", "\\x\\a.csv");
    auto second = recovery.Folder.Begin(KeptKind::kHandheld, "a.csv", "\\y\\a.csv");
    ASSERT_TRUE(first.Value()->Write("one").Ok() && second.Value()->Write("two").Ok());
    EXPECT_EQ(recovery.Disk.Contents[second.Value()->Keep().Value()], "two");
    EXPECT_EQ(recovery.Disk.Contents[first.Value()->Keep().Value()], "one");
    EXPECT_EQ(recovery.Folder.List().size(), 2U);
}

TEST(RecoveryFolder, FailureAtEveryStepKeepsWholeFilesOrNone) {
    for (const bool forGood : {false, true}) {
        bool untouched = false;
        for (int at = 0; !untouched; ++at) {
            Recovery recovery;
            recovery.Disk.Contents = {{"/raw", "new stream"}};
            recovery.Disk.FailAt = at;
            recovery.Disk.FailForGood = forGood;
            const auto kept = recovery.Folder.KeepStream("/raw", "");
            untouched = recovery.Disk.Operations <= at;
            recovery.Disk.FailAt = -1;
            EXPECT_EQ(recovery.Disk.Contents["/raw"], "new stream");
            EXPECT_EQ(recovery.Folder.FindStream("/raw").has_value(), kept.Ok()) << at;
            if (kept.Ok()) {
                EXPECT_EQ(recovery.Disk.Contents[kept.Value()], "new stream");
            }
            ASSERT_LT(at, 30);
        }
    }
}

TEST(RecoveryIndex, LinesOfOthersStayAndNothingOutsideIsRemoved) {
    Recovery recovery;
    const std::string mine = "# my own note\nstream\tx\n";
    std::string lines = mine;
    for (int i = 0; i < 21; ++i) lines += "../data.csv\tstream\td\t1\ts\to\t\n";
    recovery.Disk.Contents = {{"/b/VEK/.recovery/index.txt", lines}, {"/b/VEK/data.csv", "x"}};
    recovery.Disk.Contents["/raw"] = "stream";
    ASSERT_TRUE(recovery.Folder.KeepStream("/raw", "").Ok());
    EXPECT_TRUE(recovery.Disk.Contents.contains("/b/VEK/data.csv"));
    EXPECT_NE(recovery.Disk.Contents["/b/VEK/.recovery/index.txt"].find(mine), std::string::npos);
    EXPECT_EQ(recovery.Folder.List().size(), 20U);
}

}  // namespace
}  // namespace brask
