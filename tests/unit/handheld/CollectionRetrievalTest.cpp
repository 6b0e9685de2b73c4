// The run as users see it: order, texts, states, what is kept where.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RetrievalFixture.h"
#include "handheld/SyncSoftware.h"

namespace brask {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string kKept = "/b/VEK/.recovery/2004-03-05 13-30-00 ";

std::string Pda(const std::string& name) { return kPda + name; }
std::string Ppc(const std::string& name) { return kPpc + name; }
std::string OnPc(const std::string& name) { return kPcDirectory + name; }

TEST(CollectionRetrieval, CopiesAndDeletesInOrderAndKeepsCompanions) {
    Retrieval run;
    run.Handheld.ComesUp = 2;
    run.Handheld.Contents = {{Pda("B.csv"), "b"},
                             {Pda("B.col"), "b companion"},
                             {Ppc("A.csv"), "a"},
                             {Ppc("note.txt"), "note"}};
    run.Run();
    EXPECT_THAT(run.Lines, ElementsAre("Connected to PocketPC", "Finding Data Files on PocketPC",
                                       "2 Data Files Found on PocketPC", "Copying B.csv to PC",
                                       "Deleting File B.csv from PocketPC", "Copying A.csv to PC",
                                       "Deleting File A.csv from PocketPC"));
    EXPECT_THAT(run.Grid(), ElementsAre("B.csv Yes Yes B.col was kept as " + kKept + "B.col",
                                        "A.csv Yes Yes "));
    EXPECT_EQ(run.Outcome, RetrievalOutcome::kDone);
    EXPECT_EQ(run.Session.State, CollectState::kFinished);
    EXPECT_EQ(run.Session.FirstCopied, OnPc("B.csv"));
    EXPECT_EQ(run.Session.ReceivedFile, OnPc("A.csv"));
    EXPECT_EQ(run.Disk.Contents[OnPc("A.csv")], "a");
    EXPECT_EQ(run.Disk.Contents[kKept + "B.col"], "b companion");
    EXPECT_EQ(run.Handheld.Contents.size(), 1U);  // the note
    EXPECT_THAT(run.User.Shown, IsEmpty());
    EXPECT_THAT(run.User.Notices, ElementsAre("Data file saved: " + OnPc("B.csv"),
                                              "Data file saved: " + OnPc("A.csv")));
}

TEST(CollectionRetrieval, SecondOfTwoEqualNamesIsKeptBeforeTheFirstOnesDeletionTakesIt) {
    Retrieval run;
    run.Known.Values["NotifyUserOfNewFiles"] = "NO";
    run.Handheld.Contents = {{Pda("A.csv"), "first"}, {Ppc("A.csv"), "second"}};
    run.Disk.Contents[OnPc("A.csv")] = "older";
    run.Run();
    const std::string kept = "A.csv was kept as " + kKept + "A (2).csv";
    EXPECT_THAT(run.Grid(),
                ElementsAre("A.csv Yes Yes An older A.csv was kept as " + kKept + "A.csv; " + kept,
                            "A.csv Yes No No such file or directory; " + kept));
    EXPECT_THAT(run.User.ShownTexts(), ElementsAre("Unable to open WinCE file" + Ppc("A.csv") +
                                                   "\r\nError: No such file or directory"));
    EXPECT_EQ(run.Disk.Contents[OnPc("A.csv")], "first");
    EXPECT_EQ(run.Disk.Contents[kKept + "A.csv"], "older");
    EXPECT_EQ(run.Disk.Contents[kKept + "A (2).csv"], "second");
    EXPECT_THAT(run.User.Notices, IsEmpty());
    // an error: the window stays until it is closed
    EXPECT_EQ(run.Outcome, RetrievalOutcome::kFailed);
    EXPECT_EQ(run.Session.State, CollectState::kConnecting);
}

TEST(CollectionRetrieval, WhatCannotBeReadIsMovedAsideInsteadOfDeleted) {
    Retrieval run;
    run.Handheld.Contents = {{Pda("A.csv"), "bytes"}, {"\\VEK kept\\A.csv", "other"}};
    run.Handheld.Folders.insert("\\VEK kept");
    // from the copy's first read to the third try to save it
    run.Handheld.FailAt = 4;
    run.User.OnEvents = [&run] { run.Handheld.FailForGood = run.Handheld.Operations <= 8; };
    run.Run();
    EXPECT_EQ(run.User.Shown.at(0).Text, "Error !!! Reading WinCE file. Input/output error");
    EXPECT_THAT(run.Grid(),
                ElementsAre("A.csv Yes Yes Input/output error; "
                            "A.csv was moved to \\VEK kept\\A (2).csv on the PocketPC"));
    EXPECT_EQ(run.Handheld.Contents["\\VEK kept\\A (2).csv"], "bytes");
    EXPECT_FALSE(run.Disk.Contents.contains(OnPc("A.csv")));
}

TEST(CollectionRetrieval, BytesThatCameAfterTheCopyAreKept) {
    Retrieval run;
    run.Handheld.Contents = {{Pda("A.csv"), "bytes"}};
    run.User.OnEvents = [&run] {
        if (run.Handheld.Operations == 8) run.Handheld.Contents[Pda("A.csv")] = "bytes and more";
    };
    run.Run();
    EXPECT_THAT(run.Grid(), ElementsAre("A.csv Yes Yes A.csv was kept as " + kKept + "A.csv"));
    EXPECT_EQ(run.Disk.Contents[kKept + "A.csv"], "bytes and more");
}

TEST(CollectionRetrieval, OneFileUnderTwoPathsIsLeftAlone) {
    const std::string said =
        "It was left alone: it is the same file as " + OnPc("A.csv") + " on this computer";
    // the folder that leads to the PC's; the row of its file; the first of two copies is the PC's
    const std::pair<std::string, std::string> cases[] = {{kPda, "A.csv No No " + said},
                                                         {kPpc, "A.csv Yes Yes "}};
    for (const auto& [folder, row] : cases) {
        Retrieval run;
        run.Handheld.Contents = {{Pda("A.csv"), "bytes"}, {Ppc("A.csv"), "bytes"}};
        run.Handheld.OnPc = {folder + "A.csv"};
        run.Run();
        EXPECT_EQ(run.Grid().at(0), row);
        EXPECT_EQ(run.Grid().at(1), "A.csv No No " + said);
        EXPECT_TRUE(run.Handheld.Contents.contains(folder + "A.csv"));
    }
}

TEST(CollectionRetrieval, ATroubleIsNotHiddenByTheOtherFolder) {
    Retrieval run;
    run.Handheld.Contents = {{Pda("A.csv"), "first"}, {Ppc("A.csv"), "second"}};
    run.Handheld.FailAt = 11;  // the deletion of the copied one
    run.Run();
    EXPECT_THAT(run.Grid().at(0), StartsWith("A.csv Yes No Input/output error; "));
}

TEST(CollectionRetrieval, AFileThatNeverEndsIsGivenUp) {
    struct Endless : HandheldFile {
        Result<std::size_t> Read(std::span<char> buffer) override { return buffer.size(); }
        Result<std::uint64_t> Size() override { return std::uint64_t{1}; }
        Status Close() override { return {}; }
    } file;
    const auto reading = ReadThrough(
        file, EnglishTexts(), [](std::string_view) { return Status(); }, [] { return true; });
    EXPECT_EQ(reading.How, ReadingOutcome::End::kShort);
}

TEST(CollectionRetrieval, TellsALostFileFromASmallerTrouble) {
    // the operation that fails: listing, reading, closing, deleting
    const std::tuple<int, RetrievalOutcome, std::string> cases[] = {
        {0, RetrievalOutcome::kFailed,
         "Cannot list \\TalvexPDA\\collections\\ on the PocketPC: "
         "Input/output error"},
        {4, RetrievalOutcome::kFailed, "Not everything went well."},
        {7, RetrievalOutcome::kNotDeleted, "Not everything went well."},
        {10, RetrievalOutcome::kNotDeleted, "Not everything went well."}};
    for (const auto& [operation, outcome, line] : cases) {
        Retrieval run;
        run.Handheld.Contents = {{Pda("A.csv"), "bytes"}};
        run.Handheld.FailAt = operation;
        run.Run();
        EXPECT_EQ(run.Outcome, outcome) << operation;
        EXPECT_THAT(run.Lines.back(), HasSubstr(line));
        EXPECT_EQ(run.Session.FirstCopied.empty(), outcome == RetrievalOutcome::kFailed);
        EXPECT_EQ(run.Session.State, CollectState::kConnecting);
    }
}

TEST(CollectionRetrieval, NamesOfTheHandheldStayInTheDirectory) {
    Retrieval run;
    run.Handheld.Contents = {{Pda("..:run?.csv"), "bytes"}};
    run.Run();
    EXPECT_EQ(run.Disk.Contents[OnPc("_._run_.csv")], "bytes");
    EXPECT_THAT(run.Handheld.Contents, IsEmpty());
}

TEST(CollectionRetrieval, EndsThatTouchNothing) {
    struct End {
        const char* Address;
        bool Initialises, Connects;
        const char* Line;
        const char* Text;
        bool ProgramEnds;
    };
    const char* const noLink = "Unable to connect to PocketPC";
    const End ends[] = {{"rapi", false, false, "",
                         "Error Description:Type mismatch\r\n[Get Data From PocketPC]", true},
                        {"rapi", true, false, "synchronization program", noLink, false},
                        {"", true, false, "No handheld is set up", noLink, false},
                        {"dir:/pda", true, false, "no folder /pda", noLink, false},
                        {"rapi", true, true, "0 Data Files Found on PocketPC",
                         "No Data Files Found on this PocketPC", false}};
    for (const End& end : ends) {
        Retrieval run;
        run.Address = ParseHandheldAddress(end.Address).value();
        run.Handheld.Initialises = end.Initialises;
        run.Handheld.Connects = end.Connects;
        run.Session.FirstCopied = "of an earlier run";
        run.Run();
        EXPECT_THAT(run.User.ShownTexts(), ElementsAre(end.Text));
        EXPECT_THAT(run.Lines.empty() ? "" : run.Lines.back(), HasSubstr(end.Line));
        EXPECT_EQ(run.User.Ended(), end.ProgramEnds);
        EXPECT_EQ(run.Session.FirstCopied, "");
        EXPECT_EQ(run.Outcome,
                  end.Connects ? RetrievalOutcome::kDone : RetrievalOutcome::kNotConnected);
        EXPECT_EQ(run.Session.State,
                  end.Connects ? CollectState::kFinished : CollectState::kCancelled);
    }
}

TEST(CollectionRetrieval, StopsAtEveryTurnWithoutDeletingWhatIsNotCopied) {
    const std::map<std::string, std::string> files = {
        {Pda("A.csv"), std::string(9000, 'a')}, {Pda("A.col"), "x"}, {Ppc("B.csv"), "b"}};
    bool finished = false;
    for (int turn = 1; !finished; ++turn) {
        Retrieval run;
        run.Handheld.Contents = files;
        run.Handheld.ComesUp = 1 << 30;  // a link that reports itself for ever
        int turns = 0;
        run.User.OnEvents = [&] {
            if (++turns == 3) run.Handheld.ComesUp = 0;
            if (turns == turn) run.Session.State = CollectState::kCancelled;
        };
        run.Run();
        finished = turns < turn;
        for (const RetrievalRow& row : run.Rows) {
            EXPECT_EQ(row.Downloaded, run.Disk.Contents.contains(OnPc(row.Name))) << turn;
        }
        EXPECT_EQ(run.Session.State, finished ? CollectState::kFinished : CollectState::kCancelled);
        EXPECT_LE(turns, turn + 6);  // it looks, and ends
        EXPECT_THAT(run.Gone(files), IsEmpty());
        EXPECT_THAT(run.User.Shown, IsEmpty());
        ASSERT_LT(turn, 100);
    }
}

TEST(SyncSoftware, IsAskedForUntilItIsThere) {
    // installed, stored before, the answer; what is stored after, whether to go on, boxes shown
    const std::tuple<bool, std::string, bool, std::string, bool, std::size_t> cases[] = {
        {true, "XX", false, "OK", true, 0},
        {false, "XX", true, "OK", true, 1},
        {false, "XX", false, "XX", false, 2},
        {false, "OK", false, "OK", true, 0}};
    for (const auto& [installed, before, answer, after, goOn, shown] : cases) {
        MemoryFiles disk;
        if (installed) disk.Directories.insert("c:\\program files\\Microsoft activesync");
        MemorySettingsStore store;
        MemorySettingsStore own;
        store.Values["AskedActiveSync"] = before;
        const FixedUserLocale locale;
        Settings settings(store, own, locale, [](const auto&, const auto&) {});
        ScriptedUserInterface user;
        user.Answers = {answer};
        EXPECT_EQ(ConfirmSyncSoftware(disk, settings, user, EnglishTexts()), goOn);
        EXPECT_EQ(store.Values["AskedActiveSync"], after);
        EXPECT_EQ(user.Shown.size(), shown);
    }
}

}  // namespace
}  // namespace brask
