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
using Fault = ScriptedHandheld::Fault;

const std::string kKept = "/b/VEK/.recovery/2004-03-05 13-30-00 ";

TEST(CollectionRetrieval, CopiesAndDeletesInOrderAndKeepsCompanions) {
    Retrieval run;
    run.Handheld.ComesUp = 2;
    run.Handheld.Contents = {{kPda + "B.csv", "b"},
                             {kPda + "B.col", "b companion"},
                             {kPpc + "..:A.csv", "a"},
                             {kPpc + "note.txt", "note"}};
    run.Run();
    EXPECT_THAT(run.Lines,
                ElementsAre("Connected to PocketPC", "Finding Data Files on PocketPC",
                            "2 Data Files Found on PocketPC", "Copying B.csv to PC",
                            "Deleting File B.csv from PocketPC", "Copying ..:A.csv to PC",
                            "Deleting File ..:A.csv from PocketPC"));
    EXPECT_THAT(run.Grid(), ElementsAre("B.csv Yes Yes B.col was kept as " + kKept + "B.col",
                                        "..:A.csv Yes Yes "));
    EXPECT_EQ(run.Outcome, RetrievalOutcome::kDone);
    EXPECT_EQ(run.Session.State, CollectState::kFinished);
    EXPECT_EQ(run.Session.FirstCopied, kPcDirectory + "B.csv");
    // a name of the handheld cannot lead out of the directory
    EXPECT_EQ(run.Session.ReceivedFile, kPcDirectory + "_._A.csv");
    EXPECT_EQ(run.Disk.Contents[kPcDirectory + "_._A.csv"], "a");
    EXPECT_EQ(run.Disk.Contents[kKept + "B.col"], "b companion");
    EXPECT_EQ(run.Handheld.Contents.size(), 1U);  // the note
    EXPECT_THAT(run.User.Shown, IsEmpty());
    EXPECT_THAT(run.User.Notices, ElementsAre("Data file saved: " + kPcDirectory + "B.csv",
                                              "Data file saved: " + kPcDirectory + "_._A.csv"));
}

TEST(CollectionRetrieval, SecondOfTwoEqualNamesIsKeptBeforeTheFirstOnesDeletionTakesIt) {
    Retrieval run;
    run.Known.Values["NotifyUserOfNewFiles"] = "NO";
    run.Handheld.Contents = {{kPda + "A.csv", "first"}, {kPpc + "A.csv", "second"}};
    run.Disk.Contents[kPcDirectory + "A.csv"] = "older";
    run.Run();
    const std::string kept = "A.csv was kept as " + kKept + "A (2).csv";
    EXPECT_THAT(run.Grid(), ElementsAre("A.csv Yes Yes " + kept,
                                        "A.csv Yes No No such file or directory; " + kept));
    EXPECT_THAT(run.User.ShownTexts(), ElementsAre("Unable to open WinCE file" + kPpc + "A.csv" +
                                                   "\r\nError: No such file or directory"));
    EXPECT_EQ(run.Disk.Contents[kPcDirectory + "A.csv"], "first");
    EXPECT_EQ(run.Disk.Contents[kKept + "A.csv"], "older");
    EXPECT_EQ(run.Disk.Contents[kKept + "A (2).csv"], "second");
    EXPECT_THAT(run.User.Notices, IsEmpty());
    // an error: the window stays until it is closed
    EXPECT_EQ(run.Outcome, RetrievalOutcome::kFailed);
    EXPECT_EQ(run.Session.State, CollectState::kConnecting);
}

TEST(CollectionRetrieval, WhatCannotBeReadIsMovedAsideInsteadOfDeleted) {
    // how reading fails, from the copy's first read (operation 4) to the third try to save it; what
    // is said about it
    const std::tuple<Fault, int, std::string> cases[] = {
        {Fault::kRefused, 8, "Error !!! Reading WinCE file. Input/output error"},
        {Fault::kSilent, 9, "Failed To Close Handle on PocketPC"}};
    for (const auto& [how, last, message] : cases) {
        Retrieval run;
        run.Handheld.Contents = {{kPda + "A.csv", "bytes"}, {"\\VEK kept\\A.csv", "other"}};
        run.Handheld.Folders.insert("\\VEK kept");
        run.Handheld.FailAt = 4;
        run.Handheld.How = how;
        run.User.OnEvents = [&run, end = last] {
            run.Handheld.FailForGood = run.Handheld.Operations <= end;
        };
        run.Run();
        EXPECT_EQ(run.User.Shown.at(0).Text, message);
        EXPECT_THAT(run.Grid(),
                    ElementsAre("A.csv Yes Yes Input/output error; "
                                "A.csv was moved to \\VEK kept\\A (2).csv on the PocketPC"));
        EXPECT_EQ(run.Handheld.Contents["\\VEK kept\\A (2).csv"], "bytes");
        EXPECT_FALSE(run.Disk.Contents.contains(kPcDirectory + "A.csv"));
        EXPECT_EQ(run.Session.FirstCopied, "");
        EXPECT_EQ(run.Outcome, RetrievalOutcome::kFailed);
    }
}

TEST(CollectionRetrieval, EndsThatTouchNothing) {
    // the address; whether the handheld initialises, connects; the line, the message; whether the
    // program ends
    using End = std::tuple<const char*, bool, bool, const char*, const char*, bool>;
    const char* const noLink = "Unable to connect to PocketPC";
    const End ends[] = {{"rapi", false, false, "",
                         "Error Description:Type mismatch\r\n[Get Data From PocketPC]", true},
                        {"rapi", true, false, "synchronization program", noLink, false},
                        {"", true, false, "No handheld is set up", noLink, false},
                        {"dir:/pda", true, false, "no folder /pda", noLink, false},
                        {"rapi", true, true, "0 Data Files Found on PocketPC",
                         "No Data Files Found on this PocketPC", false}};
    for (const auto& [address, initialises, connects, line, text, programEnds] : ends) {
        Retrieval run;
        run.Address = ParseHandheldAddress(address).value();
        run.Handheld.Initialises = initialises;
        run.Handheld.Connects = connects;
        run.Session.FirstCopied = "of an earlier run";
        run.Run();
        EXPECT_THAT(run.User.ShownTexts(), ElementsAre(text));
        EXPECT_THAT(run.Lines.empty() ? "" : run.Lines.back(), HasSubstr(line));
        EXPECT_EQ(run.User.Ended(), programEnds);
        EXPECT_EQ(run.Session.FirstCopied, "");
        EXPECT_EQ(run.Outcome,
                  connects ? RetrievalOutcome::kDone : RetrievalOutcome::kNotConnected);
        EXPECT_EQ(run.Session.State, connects ? CollectState::kFinished : CollectState::kCancelled);
    }
}

TEST(CollectionRetrieval, StopsAtEveryTurnWithoutDeletingWhatIsNotCopied) {
    const std::map<std::string, std::string> files = {
        {kPda + "A.csv", std::string(9000, 'a')}, {kPda + "A.col", "x"}, {kPpc + "B.csv", "b"}};
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
        Surroundings around;
        if (installed) around.Disk.Directories.insert("c:\\program files\\Microsoft activesync");
        around.Known.Values["AskedActiveSync"] = before;
        around.User.Answers = {answer};
        EXPECT_EQ(ConfirmSyncSoftware(around.Disk, around.Options, around.User, around.Words),
                  goOn);
        EXPECT_EQ(around.Known.Values["AskedActiveSync"], after);
        EXPECT_EQ(around.User.Shown.size(), shown);
    }
}

}  // namespace
}  // namespace brask
