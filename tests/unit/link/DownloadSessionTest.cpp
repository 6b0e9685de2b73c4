#include <tuple>

#include "LinkFixture.h"

namespace brask {
namespace {

std::string Block(const std::string& text) { return std::string(1, '\0') + text; }

TEST(DownloadSession, ShowsItsStepsAndLeavesTheFileToOpen) {
    Download download;
    download.Clock.Local = {{2004, 3, 5}, 13, 30, 0};
    download.Link.Arrivals.push_front({});
    const DownloadReport report = download.Run();
    EXPECT_TRUE(report.Accepted);
    EXPECT_EQ(report.File, kFiledName);
    EXPECT_EQ(download.Collect.State, CollectState::kFinished);
    EXPECT_EQ(download.Disk.Contents[kFiledName], kDataFile);
    EXPECT_EQ(download.User.Notices, std::vector{"Data file saved: " + kFiledName});
    EXPECT_TRUE(download.User.Shown.empty());
    EXPECT_EQ(download.Link.Sent, std::vector{Block("[OUTPUT MAR-05-2004 13:30:00")});

    std::string shown;
    DownloadStep step = DownloadStep::kStarting;
    std::string labels;
    for (const DownloadDisplay& display : download.View.All) {
        if (display.Step != step) shown += labels + "|";
        step = display.Step;
        labels.clear();
        for (const std::string& label : display.Labels) labels += label + ";";
    }
    const std::string waiting =
        "Waiting for Talvex© K42;to connect over IRDA;;Winsock Connected;Press Any Key;"
        "On The Talvex© K42;|";
    const std::string received =
        "Data Transfer:;Received " + std::to_string(kStream.size()) + " Bytes;;;;;|";
    EXPECT_EQ(shown + labels, waiting + waiting + received + ";;;;;;|;;;;;;");
}

TEST(DownloadSession, WaitsWithoutLimitForTheFirstByteAndTenTimesASecondForTheInstrument) {
    Download download;
    download.Link.Devices = {};
    download.Link.Arrivals.clear();
    download.User.OnEvents = [&download] {
        if (download.Clock.Milliseconds < 60000 || !download.Link.Sent.empty()) return;
        download.Link.Devices = DeviceNamed(" vek TK42 ");
    };
    // an hour without a byte, then all
    download.Link.OnSend = [&download](const std::string&) {
        download.Link.Arrivals.resize(72000);
        for (auto& block : Blocks(kStream, 99)) download.Link.Arrivals.push_back(block);
    };
    EXPECT_TRUE(download.Run().Accepted);
    EXPECT_GE(download.Clock.Milliseconds, 3660000);
    for (std::size_t i = 10; i < download.Link.Attempts.size(); ++i) {
        ASSERT_GE(download.Link.Attempts[i] - download.Link.Attempts[i - 10], 1000);
    }
}

TEST(DownloadSession, ClearAnswers) {
    const std::string cleared = "Talvex© K42 Data Was Cleared";
    const std::string notCleared =
        "Talvex© K42 did not clear data\r\nPlease clear the data on the Talvex© K42 manually!";
    const std::string noAnswer =
        "Clear Data Acknowledge Not Received!\r\nPlease Clear The Data In The Talvex© K42";
    using Arrivals = std::deque<ScriptedInfraredSockets::Arrival>;
    // the setting, the option, what comes; whether it counts as cleared, the message, the wait
    using Case =
        std::tuple<std::string, std::optional<bool>, Arrivals, bool, std::string, std::int64_t>;
    const Case cases[] = {
        {"YES", {}, {{Block("[OK]")}}, true, cleared, 0},
        {"maybe", {}, {{}, {Block("x[OK]y")}}, true, cleared, 50},
        {"NO", true, {{Block("")}, {Block(std::string("[O\0K]", 5))}}, true, cleared, 0},
        {"YES", {}, {{Block("[ok]")}}, false, notCleared, 0},
        {"YES", {}, {{Block("[O")}, {Block("K]")}}, false, notCleared, 0},
        {"YES", {}, {}, false, noAnswer, 3000},
        {"YES", {}, {{"", true}}, false, noAnswer, 0},
        {"NO", {}, {{Block("[OK]")}}, false, "", 0},
        {"YES", false, {{Block("[OK]")}}, false, "", 0}};
    for (const auto& [setting, option, answer, isCleared, message, wait] : cases) {
        Download download;
        download.Known.Values["AutoClear"] = setting;
        download.AnswersToClear = answer;
        const DownloadReport report = download.Run({option, {}});
        EXPECT_TRUE(report.Accepted);
        EXPECT_EQ(report.Cleared, isCleared);
        EXPECT_EQ(download.Sent("[CLEAR]"), !message.empty());
        const auto texts = download.User.ShownTexts();
        EXPECT_EQ(texts, message.empty() ? std::vector<std::string>() : std::vector{message});
        EXPECT_EQ(download.Clock.Milliseconds, wait) << message;
        EXPECT_EQ(download.Collect.ReceivedFile, kFiledName);
    }
}

TEST(DownloadSession, ABrokenLinkEndsTheProgramAndTheBytesAreKept) {
    Download download;
    download.Link.Arrivals = Blocks(kStream.substr(0, 30), 30);
    download.Link.Arrivals.push_back({"", false, 5});
    download.Run();
    EXPECT_TRUE(download.User.Ended());
    EXPECT_EQ(download.User.ShownTexts(), std::vector{download.Information.ErrorText(5)});
    EXPECT_EQ(download.Collect.State, CollectState::kCancelled);
    EXPECT_EQ(download.Recovery.List().size(), 1U);
    const std::string& log = download.Disk.Contents[download.Log.Path()];
    EXPECT_NE(log.find("broke after 30 bytes: "), std::string::npos) << log;
}

TEST(DownloadSession, FailuresBeforeTheFirstByteSayWhere) {
    Download unstarted;
    unstarted.Link.StartError = 5;
    unstarted.Run();
    bool said = false;
    for (const DownloadDisplay& display : unstarted.View.All) {
        said = said || display.Labels[4] == unstarted.Information.ErrorText(5);
    }
    EXPECT_TRUE(said);
    Download unwritable;
    unwritable.Disk.FailAt = unwritable.Disk.Operations;
    unwritable.Run();
    EXPECT_NE(unwritable.User.Notices.at(0).find("could be made in /tmp: "), std::string::npos);
}

TEST(DownloadSession, TheNextDownloadRepeatsTheLastLineOfTheOneBefore) {
    Download download;
    download.Run();
    // "END DATA: 3" stands above: its first nine characters make a line of no meaning
    download.Link.Arrivals = Blocks("\x89x\r\n" + kStream, 500);
    download.Clock.Local.Second = 1;
    EXPECT_TRUE(download.Run().Accepted);
    const auto kept = download.Recovery.List();
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[1].PreviousLine, "END DATA: 3\r\n");
    EXPECT_EQ(download.Disk.Contents[download.Report.File], "END DATA:x\r\n" + kDataFile);
}

TEST(DownloadSession, RateText) {
    const EnglishTexts words;
    EXPECT_EQ(RateText(words, 1234567, 10), "1234567 (1,234,567. BPS)");
    EXPECT_EQ(RateText(words, 1000, 30), "1000 (333.3 BPS)");
    EXPECT_EQ(RateText(words, 1, 20), "1 (.5 BPS)");
    EXPECT_EQ(RateText(words, 7, 0), "7");
}

}  // namespace
}  // namespace brask
