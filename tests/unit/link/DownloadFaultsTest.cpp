#include <cstdio>
#include <map>

#include "LinkFixture.h"

namespace brask {
namespace {

// Every fault at every place it can happen; each table prints how many cases had which outcome.
class DownloadFaults : public testing::Test {
  protected:
    void TearDown() override {
        for (const auto& [outcome, count] : outcomes_) {
            std::printf("%6d x %s\n", count, outcome.c_str());
        }
    }
    // The outcome in words; what holds for each is checked on the way.
    std::string Outcome(Download& download, DownloadOptions options = {}) {
        const DownloadReport report = download.Run(options);
        std::string outcome = report.Accepted ? "accepted" : "not accepted";
        if (download.Collect.State == CollectState::kCancelled) outcome = "cancelled";
        if (report.Cleared) outcome += ", cleared";
        if (download.User.Ended()) outcome += ", program ended";
        if (report.Accepted) {
            EXPECT_EQ(download.Disk.Contents[report.File], kDataFile);
        }
        if (download.Sent("[CLEAR]")) {
            EXPECT_TRUE(report.Accepted);
            for (const std::string& path : {report.File, report.RawFile}) {
                EXPECT_EQ(download.Disk.Flushed[path], download.Disk.Contents[path].size());
            }
        }
        ++outcomes_[outcome];
        return outcome;
    }

    std::map<std::string, int> outcomes_;  // and their numbers so far
};

TEST_F(DownloadFaults, StreamCutAfterEveryByte) {
    for (const bool closed : {false, true}) {
        for (std::size_t length = 0; length <= kStream.size(); ++length) {
            if (length == 0 && !closed) continue;  // waits without limit, see below
            Download download;
            const std::string sent = kStream.substr(0, length);
            download.Link.Arrivals = Blocks(sent, 50);
            if (closed) download.Link.Arrivals.push_back({"", true});
            const bool whole = length == kStream.size();
            EXPECT_EQ(Outcome(download), whole ? "accepted" : "not accepted") << length;
            EXPECT_EQ(download.Disk.Contents[download.Report.RawFile], sent);
            EXPECT_EQ(download.Recovery.List().size(), length == 0 ? 0U : 1U);
            // The idle timer ends what has stopped, two to three seconds after the last block.
            const bool idled = !whole && length > 0 && length != kStream.size() - 1;
            EXPECT_EQ(download.Clock.Milliseconds >= 2000, idled) << length;
            EXPECT_LE(download.Clock.Milliseconds, 3100);
        }
    }
}

TEST_F(DownloadFaults, EveryBlockSizeAndFillersAtEveryDistance) {
    for (std::size_t size = 1; size <= 100; ++size) {
        Download download;
        download.Link.Arrivals = Blocks(kStream, size);
        EXPECT_EQ(Outcome(download), "accepted") << size;
        EXPECT_EQ(download.Report.Bytes, static_cast<std::int64_t>(kStream.size()));

        Download filled;
        std::string stream = kStream;
        for (std::size_t at = size; at < stream.size(); at += size + 1) stream.insert(at, 1, '\0');
        filled.Link.Arrivals = Blocks(stream, 7);
        EXPECT_EQ(Outcome(filled), "accepted") << size;
    }
}

TEST_F(DownloadFaults, EveryPhaseOfTheLastLineEnd) {
    for (std::size_t before = 0; before <= 15; ++before) {  // bytes of the stream in the last block
        for (int pauses = 0; pauses <= 8; ++pauses) {       // of 50 ms in front of it
            Download download;
            download.Link.Arrivals = Blocks(kStream.substr(0, kStream.size() - before), 40);
            download.Link.Arrivals.insert(download.Link.Arrivals.end(),
                                          static_cast<std::size_t>(pauses), {});
            const std::string rest = kStream.substr(kStream.size() - before);
            if (before > 0) download.Link.Arrivals.push_back({std::string(1, '\0') + rest});
            // A line feed alone is waited for 200 ms; with its CR the block just is the next one.
            const bool inTime = before != 1 || pauses < 4;
            EXPECT_EQ(Outcome(download), inTime ? "accepted" : "not accepted")
                << before << " " << pauses;
        }
    }
}

TEST_F(DownloadFaults, CancelAtEveryTurnOfTheEvents) {
    for (const bool clears : {false, true}) {
        bool ranThrough = false;
        for (int at = 1; !ranThrough; ++at) {
            Download download;
            download.Link.ListWaits = 2;
            download.Link.ConnectWaits = 2;
            download.Link.Arrivals.push_front({});
            download.AnswersToClear = {{}, {std::string("\0[OK]", 5)}};
            DownloadSession session(download.Link, download.System(), download.Data(),
                                    download.View, {clears, {}});
            int turns = 0;
            std::int64_t cancelledAt = -1;
            std::size_t sentBefore = 0;
            download.User.OnEvents = [&] {
                if (++turns != at) return;
                session.Cancel();
                cancelledAt = download.Clock.Milliseconds;
                sentBefore = download.Link.Sent.size();
            };
            const DownloadReport report = session.Run();
            ranThrough = cancelledAt < 0;
            EXPECT_EQ(download.Collect.State,
                      ranThrough ? CollectState::kFinished : CollectState::kCancelled);
            EXPECT_EQ(download.Collect.ReceivedFile.empty(), !ranThrough);
            EXPECT_EQ(download.Link.OpenSockets, 0);
            EXPECT_EQ(download.Recovery.List().size(), report.Bytes == 0 ? 0U : 1U) << at;
            if (!ranThrough) {
                EXPECT_LE(download.Clock.Milliseconds - cancelledAt, 200) << at;
                EXPECT_EQ(download.Link.Sent.size(), sentBefore) << at;
                EXPECT_TRUE(download.User.Shown.empty() || report.Cleared) << at;
            } else {
                EXPECT_EQ(report.Cleared, clears);
                std::printf("%6d x cancelled, then accepted\n", at - 1);
            }
            ASSERT_LT(at, 500);
        }
    }
}

TEST_F(DownloadFaults, EveryDeviceCountAndConnectError) {
    for (int count = 0; count <= 255; ++count) {
        Download download;
        download.Link.Devices = DeviceNamed("VEK TK42", count);
        EXPECT_EQ(Outcome(download, {{}, 1000}), count == 1 ? "accepted" : "cancelled") << count;
        EXPECT_EQ(download.Report.GivenUp, count != 1);
        EXPECT_LE(download.Link.Attempts.size(), 10U);
    }
    for (int error = 1; error <= 200; ++error) {
        Download download;
        download.Link.ConnectErrors = {error};
        download.User.Answers = {true};
        const bool known = !download.Information.ErrorText(error).empty();
        EXPECT_EQ(Outcome(download), known ? "accepted" : "cancelled");
        EXPECT_EQ(download.User.Shown.size(), 1U);
    }
    // how many numbers have a text differs from one C library to the other
    EXPECT_GT(outcomes_.at("accepted"), 30);
}

TEST_F(DownloadFaults, EveryFailureOfTheDisk) {
    for (const bool forGood : {false, true}) {
        bool untouched = false;
        for (int at = 0; !untouched; ++at) {
            Download download;
            // first of all what makes the directories and no part of the download
            download.Disk.Operations = 0;
            download.Disk.FailAt = at;
            download.Disk.FailForGood = forGood;
            download.Disk.NoMove = at % 2 == 1;
            download.AnswersToClear = {{std::string("\0[OK]", 5)}};
            const std::string outcome = Outcome(download, {true, {}});
            untouched = download.Disk.Operations <= at;
            if (untouched) {
                EXPECT_EQ(outcome, "accepted, cleared");
            }
            ASSERT_LT(at, 200);
        }
    }
}

}  // namespace
}  // namespace brask
